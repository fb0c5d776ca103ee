#include "desktop/windows/Metafiles.h"

#include "codecs/PictureLimits.h"
#include "desktop/windows/DeviceBitmap.h"
#include "desktop/windows/System.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace mirelle::windows {
namespace {

constexpr int kDotsPerInch = 96;
constexpr int kHundredthsOfMillimetre = 2540; // to the inch: the unit of an EMF file's frame

// The header that a WMF file needs ahead of its records to tell a size: [MS-WMF] 2.3.2.3, META_PLACEABLE.
constexpr std::uint32_t kPlaceableKey = 0x9AC6CDD7;
constexpr std::size_t kPlaceableLength = 22;
constexpr std::size_t kPlaceableBox = 6;
constexpr std::size_t kPlaceableInch = 14;

// [MS-EMF] 2.3.4.2: record type EMR_HEADER first, the signature " EMF" at byte 40.
constexpr std::size_t kSignatureAt = 40;
constexpr std::size_t kLeastEmf = 88;

struct CloseMetafile {
    void operator()(HENHMETAFILE file) const { DeleteEnhMetaFile(file); }
};
using OpenMetafile = std::unique_ptr<std::remove_pointer_t<HENHMETAFILE>, CloseMetafile>;

struct CloseContext {
    void operator()(HDC context) const { DeleteDC(context); }
};
using OpenContext = std::unique_ptr<std::remove_pointer_t<HDC>, CloseContext>;

template <class Number>
Number At(std::span<const std::uint8_t> file, std::size_t place) {
    Number number{};
    std::memcpy(&number, file.data() + place, sizeof(number));
    return number;
}

bool IsEmf(std::span<const std::uint8_t> file) {
    return file.size() >= kLeastEmf && At<std::uint32_t>(file, 0) == EMR_HEADER &&
           At<std::uint32_t>(file, kSignatureAt) == ENHMETA_SIGNATURE;
}

bool IsPlaceableWmf(std::span<const std::uint8_t> file) {
    return file.size() > kPlaceableLength && At<std::uint32_t>(file, 0) == kPlaceableKey;
}

// Units of which so many make an inch, in pixels, at least one.
int Pixels(std::int64_t length, std::int64_t unitsPerInch) {
    const std::int64_t pixels = (std::abs(length) * kDotsPerInch + unitsPerInch / 2) / unitsPerInch;
    return static_cast<int>(std::clamp<std::int64_t>(pixels, 1, std::int64_t{1} << 30));
}

Bitmap Play(HENHMETAFILE metafile, int width, int height) {
    CheckPictureSize(width, height);
    const DeviceBitmap bitmap(width, height);
    const OpenContext context(CreateCompatibleDC(nullptr));
    if (!context) throw RunTimeError(ErrorNumber::OutOfMemory);
    const HGDIOBJ before = SelectObject(context.get(), bitmap.Handle());
    const RECT all{0, 0, width, height};
    const bool played = PlayEnhMetaFile(context.get(), metafile, &all) != 0;
    SelectObject(context.get(), before);
    if (!played) throw RunTimeError(ErrorNumber::InvalidPicture);
    return bitmap.Pixels();
}

OpenMetafile Checked(HENHMETAFILE metafile) {
    if (metafile == nullptr) throw RunTimeError(ErrorNumber::InvalidPicture);
    return OpenMetafile(metafile);
}

Bitmap ReadEmf(std::span<const std::uint8_t> file) {
    const OpenMetafile metafile = Checked(SetEnhMetaFileBits(static_cast<UINT>(file.size()), file.data()));
    ENHMETAHEADER header{};
    if (GetEnhMetaFileHeader(metafile.get(), sizeof(header), &header) == 0)
        throw RunTimeError(ErrorNumber::InvalidPicture);
    const auto& frame = header.rclFrame;
    return Play(metafile.get(), Pixels(std::int64_t{frame.right} - frame.left, kHundredthsOfMillimetre),
                Pixels(std::int64_t{frame.bottom} - frame.top, kHundredthsOfMillimetre));
}

Bitmap ReadPlaceableWmf(std::span<const std::uint8_t> file) {
    const auto edge = [file](std::size_t number) {
        return At<std::int16_t>(file, kPlaceableBox + number * 2);
    };
    const int across = edge(2) - edge(0);
    const int down = edge(3) - edge(1);
    const int inch = At<std::uint16_t>(file, kPlaceableInch);
    if (across == 0 || down == 0 || inch == 0) throw RunTimeError(ErrorNumber::InvalidPicture);
    // The records are drawn into a frame of this size, whatever units they use.
    METAFILEPICT frame{};
    frame.mm = MM_ANISOTROPIC;
    frame.xExt = static_cast<LONG>(std::int64_t{std::abs(across)} * kHundredthsOfMillimetre / inch);
    frame.yExt = static_cast<LONG>(std::int64_t{std::abs(down)} * kHundredthsOfMillimetre / inch);
    const std::span<const std::uint8_t> records = file.subspan(kPlaceableLength);
    const OpenMetafile metafile =
        Checked(SetWinMetaFileBits(static_cast<UINT>(records.size()), records.data(), nullptr, &frame));
    return Play(metafile.get(), Pixels(across, inch), Pixels(down, inch));
}

} // namespace

std::optional<Bitmap> ReadMetafile(std::span<const std::uint8_t> file) {
    if (IsEmf(file)) return ReadEmf(file);
    if (IsPlaceableWmf(file)) return ReadPlaceableWmf(file);
    return std::nullopt;
}

} // namespace mirelle::windows
