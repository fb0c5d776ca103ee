#include "tests/desktop/road/Grab.h"

#include <QImage>
#include <QString>

#include <stdexcept>

namespace mirelle::test {

void MakeGrab(const std::string& file) {
    QImage grab(1000, 700, QImage::Format_RGB32);
    for (int y = 0; y < grab.height(); ++y)
        for (int x = 0; x < grab.width(); ++x)
            grab.setPixel(x, y, qRgb(x * 255 / grab.width(), y * 255 / grab.height(), (x / 4 + y / 4) % 256));
    if (!grab.save(QString::fromStdString(file))) throw std::runtime_error("cannot write " + file);
}

} // namespace mirelle::test
