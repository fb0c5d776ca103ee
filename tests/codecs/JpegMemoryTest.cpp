// Runs the encoder while memory runs out, at each place where it asks for some, and what makes the other
// files. In a program of its own, because it replaces the allocation of the whole program.
#include "codecs/BmpWriter.h"
#include "codecs/cJPEG.h"
#include "codecs/tiff/ByteArray.h"
#include "codecs/TiffWriter.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/MemoryFileSystem.h"
#include "tests/support/Patterns.h"

#include <atomic>
#include <cstdlib>
#include <new>
#include <optional>

#include <gtest/gtest.h>

namespace {

constexpr long kPlenty = -1;

std::atomic<long> allocationsLeft = kPlenty;
std::atomic<bool> failed = false;
std::atomic<bool> failsOnce = false;

// Whether this allocation is one that has to fail.
bool IsRefused() {
    if (allocationsLeft.load() == kPlenty) return false;
    long left = allocationsLeft.load();
    while (left > 0 && !allocationsLeft.compare_exchange_weak(left, left - 1)) {
    }
    if (left > 0 || (failsOnce && failed.exchange(true))) return false;
    failed = true;
    return true;
}

} // namespace

void* operator new(std::size_t size) {
    void* memory = IsRefused() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void* operator new[](std::size_t size) {
    return operator new(size);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace mirelle::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Memory for so many allocations more while it lives.
class MemoryFor {
public:
    MemoryFor(long allocations, bool once) {
        failed = false;
        failsOnce = once;
        allocationsLeft = allocations;
    }
    ~MemoryFor() { allocationsLeft = kPlenty; }
    MemoryFor(const MemoryFor&) = delete;
    MemoryFor& operator=(const MemoryFor&) = delete;
};

// Holds what is written; the room for it is there before memory runs out.
class KeepingFileSystem : public MemoryFileSystem {
public:
    KeepingFileSystem() { written.reserve(1 << 22); }
    bool FileExists(const std::string&) const override { return false; }
    void WriteFile(const std::string&, std::span<const std::uint8_t> bytes) override {
        written.assign(bytes.begin(), bytes.end());
    }
    Bytes written;
};

struct Way {
    const char* name;
    int width, height;
    bool surface; // or an array
    bool once;    // only one allocation fails, or all from there on
};

class JpegMemoryTest : public ::testing::TestWithParam<Way> {
protected:
    // The number of the error; nothing where the file was written. A surface that can't be made counts as 7.
    std::optional<ErrorNumber> Encode() {
        files_.written.clear();
        try {
            cJPEG jpeg;
            const Way& way = GetParam();
            const int sampled =
                way.surface ? jpeg.SampleHDC(picture_.Pixels(), way.width, way.height)
                            : jpeg.SampleDATA(data_, way.width, way.height, way.width, way.height, 0, 0);
            if (sampled != cJPEG::kDone) return ErrorNumber::OutOfMemory;
            jpeg.SaveFileJPG("C:\\a.jpg", files_);
            return std::nullopt;
        } catch (const RunTimeError& error) {
            return error.Number();
        }
    }

    Picture picture_ = ChartPicture(GetParam().width, GetParam().height, 3);
    Bytes data_ = Bytes(
        static_cast<std::size_t>(GetParam().width) * static_cast<std::size_t>(GetParam().height) * 3, 0x5A);
    KeepingFileSystem files_;
};

TEST_P(JpegMemoryTest, EveryAllocationThatFailsIsToldOrDoneWithout) {
    ASSERT_EQ(Encode(), std::nullopt);
    const Bytes whole = files_.written;
    long told = 0;
    for (long allocations = 0;; ++allocations) {
        std::optional<ErrorNumber> error;
        {
            const MemoryFor memory(allocations, GetParam().once);
            error = Encode();
        }
        if (error) {
            ASSERT_EQ(error, ErrorNumber::OutOfMemory) << "after " << allocations;
            ++told;
        } else {
            ASSERT_EQ(files_.written, whole) << "after " << allocations;
        }
        if (!failed) break;
    }
    EXPECT_GT(told, 10);
}

INSTANTIATE_TEST_SUITE_P(Ways, JpegMemoryTest,
                         ::testing::Values(Way{"SmallSurface", 20, 20, true, false},
                                           Way{"SmallArray", 20, 20, false, false},
                                           Way{"SurfaceForThreads", 640, 400, true, false},
                                           Way{"SurfaceForThreadsOneFailure", 640, 400, true, true},
                                           Way{"ArrayForThreadsOneFailure", 640, 400, false, true}),
                         [](const auto& way) { return way.param.name; });

TEST(FilesMemoryTest, FilesAndArraysWithoutRoomAreTold) {
    const Bitmap bitmap(8, 8);
    tiff::ByteArray array;
    const auto errorOf = [](const auto& make) {
        const MemoryFor memory(0, false);
        return ErrorOf(make);
    };
    EXPECT_EQ(errorOf([&] { (void)BmpFile(bitmap); }), ErrorNumber::OutOfMemory);
    EXPECT_EQ(errorOf([&] { (void)TiffFile(bitmap); }), ErrorNumber::OutOfMemory);
    EXPECT_EQ(errorOf([&] { tiff::Resize(array, 100); }), ErrorNumber::OutOfMemory);
    EXPECT_TRUE(array.empty());
}

} // namespace
} // namespace mirelle::test
