// Any bytes as a TIFF file: loaded, silently not shown, or one of the errors that the reader tells of. What
// is shown has the size that the file tells; what is not leaves the Material Image empty, with its own size.
#include "codecs/clsTiff.h"
#include "tests/forms/TestForm.h"
#include "tests/support/MemoryFileSystem.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

using mirelle::ErrorNumber;

constexpr const char* kFile = "C:\\Mirelle\\a.tif";
// Arrays no longer than this, so that a run has time for many files; the longest picture that a run shows has
// room in them.
constexpr std::int64_t kLongestArray = 1 << 22;
// What the box has ahead of a load.
constexpr int kSide = 3;

constexpr std::array kToldErrors = {ErrorNumber::Overflow, ErrorNumber::OutOfMemory,
                                    ErrorNumber::SubscriptOutOfRange, ErrorNumber::BadRecordNumber};

bool IsShown(const mirelle::clsTiff& tiff) {
    constexpr std::array kDepths = {1, 8, 24};
    return (tiff.Compression() == 1 || tiff.Compression() == -32763) &&
           std::ranges::find(kDepths, tiff.BitsPerPixel()) != kDepths.end();
}

bool HasSize(const mirelle::PictureBox& box, int width, int height) {
    return box.PixelWidth() == width && box.PixelHeight() == height;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    mirelle::test::TestForm desk;
    mirelle::PictureBox picSmall(desk.form, "picSmall", {});
    picSmall.SizeInPixels(kSide, kSide);
    mirelle::test::MemoryFileSystem files;
    files.AddFile(kFile, {data, data + size});
    mirelle::clsTiff tiff(picSmall, files, {.longestArray = kLongestArray});
    try {
        tiff.LoadTIFF(kFile);
    } catch (const mirelle::RunTimeError& error) {
        if (std::ranges::find(kToldErrors, error.Number()) == kToldErrors.end()) std::abort();
        if (!picSmall.Picture().IsEmpty() || !HasSize(picSmall, kSide, kSide)) std::abort();
        return 0;
    }
    const mirelle::Picture& shown = picSmall.Picture();
    const bool wasLoaded = files.FileExists("c:\\komp.txt");
    if (shown.IsEmpty() == (wasLoaded && IsShown(tiff))) std::abort();
    // Two negative sizes draw nothing into the box.
    const bool isPicture = tiff.ImageWidth() > 0;
    const int width = isPicture ? tiff.ImageWidth() : kSide;
    const int height = isPicture ? tiff.ImageHeight() : kSide;
    const bool hasSize =
        shown.Width() == width && shown.Height() == height && HasSize(picSmall, width, height);
    if (!shown.IsEmpty() && !hasSize) std::abort();
    return 0;
}
