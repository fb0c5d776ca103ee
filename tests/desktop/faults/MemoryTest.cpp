// Memory that runs out, and memory that must not grow.
#include "forms/WatchedMemory.h"
#include "tests/desktop/faults/DiskProgram.h"
#include "tests/desktop/ports/JpegMaker.h"
#include "tests/support/HeapInUse.h"
#include "tests/support/TestDib.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <vector>

#include <sys/resource.h>
#include <unistd.h>

namespace mirelle::test {
namespace {

constexpr std::uint32_t kSide = 9000; // 324 megabytes of pixels
constexpr rlim_t kMegabytesLeft = 128;

// The run-length coded rows end at once: a few bytes for a large picture.
FileBytes LargeBmp() {
    return BmpBytes({.width = kSide,
                     .height = kSide,
                     .bitCount = 8,
                     .compression = 1,
                     .coloursUsed = 2,
                     .palette = {0xFF0000, 0x00FF00},
                     .pixels = {0, 1}});
}

// The frame header's sides are written anew.
FileBytes LargeJpeg() {
    FileBytes file = MakeJpeg(SmoothBitmap(16, 16));
    for (std::size_t i = 0; i + 8 < file.size(); ++i) {
        if (file[i] != 0xFF || file[i + 1] != 0xC0) continue;
        file[i + 5] = file[i + 7] = kSide >> 8;
        file[i + 6] = file[i + 8] = kSide & 0xFF;
        return file;
    }
    std::abort();
}

std::size_t PagesInUse(int column) {
    std::ifstream pages("/proc/self/statm");
    std::size_t count = 0;
    for (int i = 0; i <= column; ++i)
        pages >> count;
    return count;
}

void LimitAddressSpace() {
    const rlim_t now = PagesInUse(0) * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
    const rlim_t limit = now + (kMegabytesLeft << 20);
    const rlimit limits{limit, limit};
    if (::setrlimit(RLIMIT_AS, &limits) != 0) std::abort();
}

// The end of a process of its own: 0 where the condition holds.
[[noreturn]] void Leave(bool condition, const char* what) {
    if (!condition) std::fprintf(stderr, "not so: %s\n", what);
    std::_Exit(condition ? 0 : 1);
}

[[noreturn]] void ChooseALargePicture(DiskProgram& program) {
    LimitAddressSpace();
    FrmPicX& form = program.form;
    const Picture former = form.PicImage.Picture();
    form.File5.SetListIndex(0);
    if (!form.PicImage.Picture().SharesPixelsWith(former)) Leave(false, "the canvas keeps its picture");
    // The program goes on: the next one is small.
    form.File5.SetListIndex(1);
    Leave(form.PicImage.Picture().Width() == 12, "the next file is loaded");
}

void ExpectThatALargePictureIsPassedOver(const char* extension, const FileBytes& large) {
    DiskProgram program;
    const std::string art = "Support/Materials/Art/";
    program.folder.MakeFile(art + "x1" + extension, large);
    program.folder.MakeFile(art + "x2" + extension, BmpFile(SmoothBitmap(12, 8)));
    program.ShowPattern(std::string("x*") + extension);
    ASSERT_EQ(program.form.File5.ListCount(), 2);
    program.form.PicImage.Picture = Picture(SmoothBitmap(20, 10));
    EXPECT_EXIT(ChooseALargePicture(program), testing::ExitedWithCode(0), "");
}

TEST(OutOfMemory, KeepsThePicturesWhenABitmapIsTooLarge) {
    if (kMemoryIsWatched) GTEST_SKIP() << "the sanitizer itself needs the address space";
    ExpectThatALargePictureIsPassedOver(".bmp", LargeBmp());
}

TEST(OutOfMemory, KeepsThePicturesWhenAPhotographIsTooLarge) {
    if (kMemoryIsWatched) GTEST_SKIP() << "the sanitizer itself needs the address space";
    ExpectThatALargePictureIsPassedOver(".jpg", LargeJpeg());
}

TEST(OutOfMemory, KeepsThePicturesWhenAFileIsTooLarge) {
    if (kMemoryIsWatched) GTEST_SKIP() << "the sanitizer itself needs the address space";
    DiskProgram program;
    const std::string art = "Support/Materials/Art/";
    program.folder.MakeFile(art + "x1.jpg", MakeJpeg(SmoothBitmap(16, 16)));
    std::filesystem::resize_file(program.InArt("x1.jpg"), std::uintmax_t{1} << 30); // a hole, mostly
    program.folder.MakeFile(art + "x2.jpg", BmpFile(SmoothBitmap(12, 8)));
    program.ShowPattern("x*.jpg");
    ASSERT_EQ(program.form.File5.ListCount(), 2);
    program.form.PicImage.Picture = Picture(SmoothBitmap(20, 10));
    EXPECT_EXIT(ChooseALargePicture(program), testing::ExitedWithCode(0), "");
}

constexpr std::array kPatterns = {"*.bmp", "*.png", "*.tif", "*.gif", "*.jpg",
                                  "*.jpg", "*.jpg", "*.jpg", "*.jpg", "*.jpg"};
constexpr int kNames = 50; // until they come round

// Pastes a picture, crops it, saves the crop over a former one. The formats take turns.
void WorkOnce(DiskProgram& program, int round) {
    FrmPicX& form = program.form;
    if (round % kNames == 0) {
        form.cmdResetfCnt.UserClick();
        program.ShowPattern(kPatterns[static_cast<std::size_t>(round / kNames) % kPatterns.size()]);
    }
    form.Command5.UserClick();
    const float edge = static_cast<float>(round % 20);
    form.MouseDown({1, 0, edge, 5});
    form.MouseMove({1, 0, edge + 20, 20});
    form.MouseUp({1, 0, edge + 30, 40});
    program.desktop.dialogs.messageAnswers = {MessageAnswer::Yes};
    form.Command3.UserClick();
    program.desktop.dialogs.messages.clear();
}

TEST(Memory, IsMeasuredWhoeverHandsItOut) {
    constexpr std::size_t kSize = std::size_t{3} << 20;
    const std::size_t before = HeapInUse();
    const std::vector<char> large(kSize, 'x');
    EXPECT_GE(HeapInUse(), before + kSize);
}

TEST(Memory, DoesNotGrowOverTenThousandPastesCropsAndSaves) {
    constexpr int kRounds = 10000;
    constexpr int kFirstRounds = 500; // every format, and every name of it
    DiskProgram program;
    program.desktop.clipboard.bitmap = Picture(SmoothBitmap(80, 60));
    std::size_t heapAtFirst = 0;
    std::size_t pagesAtFirst = 0;
    for (int round = 0; round < kRounds; ++round) {
        if (round == kFirstRounds) {
            heapAtFirst = HeapInUse();
            pagesAtFirst = PagesInUse(1);
        }
        WorkOnce(program, round);
    }
    EXPECT_EQ(program.form.File5.ListCount(), kNames);
    EXPECT_LT(HeapInUse(), heapAtFirst + (std::size_t{1} << 20));
    if (kMemoryIsWatched) return;                  // it keeps what is freed for a while
    EXPECT_LT(PagesInUse(1), pagesAtFirst + 4096); // 16 megabytes
}

} // namespace
} // namespace mirelle::test
