// WMF and EMF files are drawn at 96 dots to the inch over white.
#include "desktop/windows/Metafiles.h"

#include "desktop/windows/System.h"
#include "tests/support/ErrorOf.h"

#include <cstring>
#include <vector>

#include <gmock/gmock.h>

namespace mirelle::windows {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr Pixel kWhite{255, 255, 255, 0};
constexpr Pixel kRed{0, 0, 255, 0};

// Two inches by one, the right half red.
Bytes EmfFile() {
    const RECT frame{0, 0, 5080, 2540};
    const HDC context = CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
    SetMapMode(context, MM_ANISOTROPIC);
    SetWindowExtEx(context, 200, 100, nullptr);
    const int across = GetDeviceCaps(context, HORZRES);
    const int down = GetDeviceCaps(context, VERTRES);
    SetViewportExtEx(context, 5080 * across / (100 * GetDeviceCaps(context, HORZSIZE)),
                     2540 * down / (100 * GetDeviceCaps(context, VERTSIZE)), nullptr);
    const RECT half{100, 0, 200, 100};
    const HBRUSH brush = CreateSolidBrush(0x0000FF);
    FillRect(context, &half, brush);
    DeleteObject(brush);
    const HENHMETAFILE file = CloseEnhMetaFile(context);
    Bytes bytes(GetEnhMetaFileBits(file, 0, nullptr));
    GetEnhMetaFileBits(file, static_cast<UINT>(bytes.size()), bytes.data());
    DeleteEnhMetaFile(file);
    return bytes;
}

template <class Number>
void Append(Bytes& bytes, Number number) {
    const auto* begin = reinterpret_cast<const std::uint8_t*>(&number);
    bytes.insert(bytes.end(), begin, begin + sizeof(number));
}

// A box of 200 by 100 units, 100 to the inch, its right half red; the origin is at its left top corner.
Bytes WmfFile(std::uint16_t unitsPerInch = 100) {
    const HDC context = CreateMetaFileW(nullptr);
    SetMapMode(context, MM_ANISOTROPIC);
    SetWindowOrgEx(context, 0, 0, nullptr);
    SetWindowExtEx(context, 200, 100, nullptr);
    const HBRUSH brush = CreateSolidBrush(0x0000FF);
    const HGDIOBJ before = SelectObject(context, brush);
    SelectObject(context, GetStockObject(NULL_PEN));
    Rectangle(context, 100, 0, 202, 102);
    SelectObject(context, before);
    DeleteObject(brush);
    const HMETAFILE file = CloseMetaFile(context);
    Bytes records(GetMetaFileBitsEx(file, 0, nullptr));
    GetMetaFileBitsEx(file, static_cast<UINT>(records.size()), records.data());
    DeleteMetaFile(file);

    Bytes bytes;
    Append<std::uint32_t>(bytes, 0x9AC6CDD7);
    for (const int each : {0, 0, 0, 200, 100})
        Append(bytes, static_cast<std::int16_t>(each));
    Append(bytes, unitsPerInch);
    Append<std::uint32_t>(bytes, 0);
    Append<std::uint16_t>(bytes, 0); // the sum of checks, which nobody looks at
    bytes.insert(bytes.end(), records.begin(), records.end());
    return bytes;
}

void ExpectRedRightHalf(const Bitmap& bitmap) {
    ASSERT_NEAR(bitmap.Width(), 192, 1);
    ASSERT_NEAR(bitmap.Height(), 96, 1);
    EXPECT_EQ(bitmap.At(4, 4), kWhite);
    EXPECT_EQ(bitmap.At(90, 90), kWhite);
    EXPECT_EQ(bitmap.At(102, 4), kRed);
    EXPECT_EQ(bitmap.At(188, 90), kRed);
}

TEST(Metafiles, AnEmfFileIsDrawnInItsFrame) {
    const std::optional<Bitmap> bitmap = ReadMetafile(EmfFile());
    ASSERT_TRUE(bitmap);
    ExpectRedRightHalf(*bitmap);
}

TEST(Metafiles, AWmfFileIsDrawnInItsBox) {
    const std::optional<Bitmap> bitmap = ReadMetafile(WmfFile());
    ASSERT_TRUE(bitmap);
    ExpectRedRightHalf(*bitmap);
}

TEST(Metafiles, OtherFilesAreLeftToOthers) {
    EXPECT_FALSE(ReadMetafile({}));
    EXPECT_FALSE(ReadMetafile(Bytes{1, 0, 0, 0}));
    EXPECT_FALSE(ReadMetafile(Bytes(200)));
}

TEST(Metafiles, BrokenOnesRaiseError481) {
    Bytes cut = EmfFile();
    cut.resize(100);
    EXPECT_EQ(test::ErrorOf([&] { ReadMetafile(cut); }), ErrorNumber::InvalidPicture);
    EXPECT_EQ(test::ErrorOf([] { ReadMetafile(WmfFile(0)); }), ErrorNumber::InvalidPicture);
    Bytes empty = WmfFile();
    empty.resize(23);
    EXPECT_EQ(test::ErrorOf([&] { ReadMetafile(empty); }), ErrorNumber::InvalidPicture);
}

} // namespace
} // namespace mirelle::windows
