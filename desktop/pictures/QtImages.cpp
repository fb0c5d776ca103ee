#include "desktop/pictures/QtImages.h"

#include "codecs/OverWhite.h"
#include "codecs/PictureLimits.h"
#include "desktop/pictures/FourthBytes.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>

namespace mirelle {
namespace {

constexpr int kMegabytesForImages = static_cast<int>(kGreatestPixelCount * 4 / (1024 * 1024));

Bitmap CopyOf(const QImage& image) {
    Bitmap bitmap = Bitmap::Unwritten(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(bitmap.Row(y).data(), image.constScanLine(y), bitmap.Row(y).size_bytes());
    return bitmap;
}

Bitmap OpaqueCopyOf(const QImage& image) {
    Bitmap bitmap = Bitmap::Unwritten(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y)
        CopyWithFourthBytesClear(image.constScanLine(y), bitmap.Row(y));
    return bitmap;
}

// The toolkit keeps a pixel of these formats as one number 0xAARRGGBB.
static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN, "pixels of images and bitmaps have one order of bytes");

} // namespace

QImage ReadImage(std::span<const std::uint8_t> file, const char* format) {
    // The toolkit's own limit is far below what a photograph can be.
    QImageReader::setAllocationLimit(kMegabytesForImages);
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(file.data()),
                                               static_cast<qsizetype>(file.size()));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    if (const QSize size = reader.size(); size.isValid()) CheckPictureSize(size.width(), size.height());
    QImage image = reader.read();
    if (image.isNull()) throw RunTimeError(ErrorNumber::InvalidPicture);
    return image;
}

Bitmap OpaqueBitmap(const QImage& image) {
    Bitmap bitmap = BitmapWithAlpha(image);
    if (image.hasAlphaChannel())
        std::transform(bitmap.Pixels().begin(), bitmap.Pixels().end(), bitmap.Pixels().begin(), OverWhite);
    return bitmap;
}

Bitmap BitmapWithAlpha(const QImage& image) {
    if (image.hasAlphaChannel()) return CopyOf(image.convertToFormat(QImage::Format_ARGB32));
    return OpaqueCopyOf(image.convertToFormat(QImage::Format_RGB32));
}

QImage ImageOver(const Bitmap& bitmap) {
    return {reinterpret_cast<const uchar*>(bitmap.Pixels().data()), bitmap.Width(), bitmap.Height(),
            static_cast<qsizetype>(sizeof(Pixel)) * bitmap.Width(), QImage::Format_RGB32};
}

} // namespace mirelle
