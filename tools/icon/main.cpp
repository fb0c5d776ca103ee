// mirelle_icon FILE: writes the program's icon as an ICO file, a PNG picture for each size that Windows asks
// for.
#include "desktop/look/Icons.h"

#include <QApplication>
#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QPixmap>

#include <cstdio>

namespace {

constexpr int kSizes[] = {16, 20, 24, 32, 40, 48, 64, 128, 256};
constexpr quint32 kHeaderLength = 6;
constexpr quint32 kEntryLength = 16;

QByteArray PngOf(const QPixmap& pixmap) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    pixmap.save(&buffer, "png");
    return bytes;
}

QByteArray IcoFile(const QIcon& icon) {
    QByteArray file;
    QByteArray pictures;
    QDataStream stream(&file, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(0) << quint16(1) << quint16(std::size(kSizes));
    const quint32 start = kHeaderLength + kEntryLength * quint32(std::size(kSizes));
    for (const int size : kSizes) {
        const QByteArray png = PngOf(icon.pixmap(QSize(size, size), 1.0));
        // A side of 256 is told as 0.
        stream << quint8(size) << quint8(size) << quint8(0) << quint8(0) << quint16(1) << quint16(32)
               << quint32(png.size()) << start + quint32(pictures.size());
        pictures += png;
    }
    return file + pictures;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("mirelle_icon FILE\n", stderr);
        return 2;
    }
    QFile file(QFile::decodeName(argv[1]));
    const QByteArray bytes = IcoFile(mirelle::look::ApplicationIcon());
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? 0 : 1;
}
