// Any bytes as a TIFF file: loaded, silently not shown, or one of the errors that the reader tells of. What
// is shown has the size that the file tells; what is not leaves the Material Image empty.
#include "codecs/clsTiff.h"
#include "tests/forms/TestForm.h"
#include "tests/support/MemoryFileSystem.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

using mirelle::ErrorNumber;

constexpr const char* kFile = "C:\\Mirelle\\a.tif";
// Arrays no longer than this, so that a run has time for many files.
constexpr std::int64_t kLongestArray = 1 << 18;

constexpr std::array kToldErrors = {ErrorNumber::Overflow, ErrorNumber::OutOfMemory,
                                    ErrorNumber::SubscriptOutOfRange, ErrorNumber::BadRecordNumber};

bool IsShown(const mirelle::clsTiff& tiff) {
    constexpr std::array kDepths = {1, 8, 24};
    return (tiff.Compression() == 1 || tiff.Compression() == -32763) &&
           std::ranges::find(kDepths, tiff.BitsPerPixel()) != kDepths.end();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    mirelle::test::TestForm desk;
    mirelle::PictureBox picSmall(desk.form, "picSmall", {});
    mirelle::test::MemoryFileSystem files;
    files.AddFile(kFile, {data, data + size});
    mirelle::clsTiff tiff(picSmall, files, kLongestArray);
    try {
        tiff.LoadTIFF(kFile);
    } catch (const mirelle::RunTimeError& error) {
        if (std::ranges::find(kToldErrors, error.Number()) == kToldErrors.end()) std::abort();
        if (!picSmall.Picture().IsEmpty()) std::abort();
        return 0;
    }
    const mirelle::Picture& shown = picSmall.Picture();
    const bool wasLoaded = files.FileExists("c:\\komp.txt");
    if (shown.IsEmpty() == (wasLoaded && IsShown(tiff))) std::abort();
    const bool hasSize = shown.Width() == tiff.ImageWidth() && shown.Height() == tiff.ImageHeight();
    if (!shown.IsEmpty() && !hasSize) std::abort();
    return 0;
}
