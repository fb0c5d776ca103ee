#include "desktop/windows/GdiPlusEncoders.h"

#include "desktop/windows/DeviceBitmap.h"
#include "desktop/windows/FileHandle.h"
#include "desktop/windows/GdiPlus.h"
#include "desktop/windows/NewFile.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace mirelle {
namespace {

namespace flat = Gdiplus::DllExports;

struct MimeRow {
    ImageFormat format;
    const wchar_t* mimeType;
};
constexpr std::array kMimeTypes = {
    MimeRow{ImageFormat::Png, L"image/png"},   MimeRow{ImageFormat::Gif, L"image/gif"},
    MimeRow{ImageFormat::Jpeg, L"image/jpeg"}, MimeRow{ImageFormat::Tiff, L"image/tiff"},
    MimeRow{ImageFormat::Bmp, L"image/bmp"},
};

bool SameInAnyCase(const wchar_t* first, const wchar_t* second) {
    return CompareStringOrdinal(first, -1, second, -1, TRUE) == CSTR_EQUAL;
}

// The class of the encoder for a format, as the system lists its encoders; nothing where it has none.
std::optional<CLSID> EncoderClsid(ImageFormat format) {
    const auto wanted = std::find_if(kMimeTypes.begin(), kMimeTypes.end(),
                                     [format](const MimeRow& row) { return row.format == format; });
    UINT count = 0;
    UINT size = 0;
    if (wanted == kMimeTypes.end() || flat::GdipGetImageEncodersSize(&count, &size) != Gdiplus::Ok ||
        size == 0)
        return std::nullopt;
    // The records stand first in the block, and the texts that they point to behind them.
    std::vector<Gdiplus::ImageCodecInfo> block(size / sizeof(Gdiplus::ImageCodecInfo) + 1);
    if (flat::GdipGetImageEncoders(count, size, block.data()) != Gdiplus::Ok) return std::nullopt;
    for (UINT i = 0; i < count; ++i)
        if (SameInAnyCase(block[i].MimeType, wanted->mimeType)) return block[i].Clsid;
    return std::nullopt;
}

// A GIF file has a palette, and GDI+ would take one that has nothing to do with the picture.
windows::DeviceBitmap BitmapFor(ImageFormat format, const Bitmap& bitmap) {
    if (format != ImageFormat::Gif) return windows::DeviceBitmap(bitmap);
    const std::optional<IndexedBitmap> exact = IndexExactly(bitmap);
    return windows::DeviceBitmap(exact ? *exact : IndexByDithering(bitmap));
}

struct ReleaseStream {
    void operator()(IStream* stream) const { stream->Release(); }
};
using MemoryStream = std::unique_ptr<IStream, ReleaseStream>;

// What has been written to a stream.
std::vector<std::uint8_t> BytesOf(IStream& stream) {
    STATSTG told{};
    if (FAILED(stream.Stat(&told, STATFLAG_NONAME)) || FAILED(stream.Seek({}, STREAM_SEEK_SET, nullptr)))
        throw RunTimeError(ErrorNumber::DeviceIOError);
    std::vector<std::uint8_t> bytes(told.cbSize.QuadPart);
    ULONG count = 0;
    if (FAILED(stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), &count)) || count != bytes.size())
        throw RunTimeError(ErrorNumber::DeviceIOError);
    return bytes;
}

class Image {
public:
    explicit Image(const windows::DeviceBitmap& bitmap) {
        if (flat::GdipCreateBitmapFromHBITMAP(bitmap.Handle(), nullptr, &image_) != Gdiplus::Ok)
            throw RunTimeError(ErrorNumber::DeviceIOError);
    }
    ~Image() { flat::GdipDisposeImage(image_); }
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

    void Save(const std::wstring& path, const CLSID& encoder) const {
        if (flat::GdipSaveImageToFile(image_, path.c_str(), &encoder, nullptr) != Gdiplus::Ok)
            throw RunTimeError(ErrorNumber::DeviceIOError);
    }

    std::vector<std::uint8_t> Encoded(const CLSID& encoder) const {
        IStream* made = nullptr;
        if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, &made))) throw RunTimeError(ErrorNumber::OutOfMemory);
        const MemoryStream stream(made);
        if (flat::GdipSaveImageToStream(image_, stream.get(), &encoder, nullptr) != Gdiplus::Ok)
            throw RunTimeError(ErrorNumber::DeviceIOError);
        return BytesOf(*stream);
    }

private:
    Gdiplus::GpBitmap* image_ = nullptr;
};

} // namespace

void GdiPlusEncoders::Start() {
    if (token_ != 0) return;
    Gdiplus::GdiplusStartupInput input; // version 1, nothing else
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok)
        throw RunTimeError(ErrorNumber::DeviceIOError);
    token_ = token;
}

void GdiPlusEncoders::Stop() {
    if (token_ != 0) Gdiplus::GdiplusShutdown(token_);
    token_ = 0;
}

bool GdiPlusEncoders::Save(const Picture& picture, ImageFormat format, const std::string& path) {
    if (token_ == 0 || picture.IsEmpty() || picture.Pixels().IsEmpty()) return false;
    const std::optional<CLSID> encoder = EncoderClsid(format);
    if (!encoder) return false;
    return ResumeNext([&] {
        const windows::DeviceBitmap bitmap = BitmapFor(format, picture.Pixels());
        const Image image(bitmap);
        windows::NewFile file(path);
        // GDI+ promises nothing for paths that are longer than what Windows takes by itself.
        if (windows::IsLongForm(file.Path()))
            file.Write(image.Encoded(*encoder));
        else
            image.Save(file.Path(), *encoder);
        file.TakePlace();
    });
}

} // namespace mirelle
