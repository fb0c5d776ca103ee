#include "desktop/encoders/FileEncoders.h"

#include "codecs/BmpWriter.h"
#include "codecs/TiffWriter.h"
#include "desktop/encoders/GifFile.h"
#include "desktop/pictures/QtImages.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <array>

#include <QBuffer>
#include <QImageWriter>

namespace mirelle {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int kDotsPerMetre = 3780; // 96 to the inch
// Of the toolkit's 0 to 100. Beyond it a large PNG file takes many times as long and becomes little smaller.
constexpr int kPngCompression = 30;

Bytes WrittenByToolkit(const Bitmap& bitmap, const char* format, int compression) {
    QImage image = ImageOver(bitmap);
    image.setDotsPerMeterX(kDotsPerMetre);
    image.setDotsPerMeterY(kDotsPerMetre);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    if (compression >= 0) writer.setCompression(compression);
    if (!writer.write(image)) throw RunTimeError(ErrorNumber::InvalidPicture);
    return {bytes.begin(), bytes.end()};
}

struct Encoder {
    ImageFormat format;
    Bytes (*write)(const Bitmap& bitmap);
};

constexpr std::array kEncoders = {
    Encoder{ImageFormat::Png,
            [](const Bitmap& bitmap) { return WrittenByToolkit(bitmap, "png", kPngCompression); }},
    Encoder{ImageFormat::Gif, GifFile},
    Encoder{ImageFormat::Jpeg, [](const Bitmap& bitmap) { return WrittenByToolkit(bitmap, "jpeg", -1); }},
    Encoder{ImageFormat::Tiff, TiffFile},
    Encoder{ImageFormat::Bmp, BmpFile},
};

} // namespace

std::vector<std::uint8_t> EncodePicture(const Picture& picture, ImageFormat format) {
    const auto encoder = std::find_if(kEncoders.begin(), kEncoders.end(),
                                      [format](const Encoder& each) { return each.format == format; });
    if (picture.IsEmpty() || picture.Pixels().IsEmpty() || encoder == kEncoders.end())
        throw RunTimeError(ErrorNumber::InvalidPicture);
    return encoder->write(picture.Pixels());
}

bool FileEncoders::Save(const Picture& picture, ImageFormat format, const std::string& path) {
    return ResumeNext([&] { files_.WriteFile(path, EncodePicture(picture, format)); });
}

} // namespace mirelle
