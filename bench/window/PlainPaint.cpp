#include "bench/window/PlainPaint.h"

#include "bench/window/WindowedProgram.h"

#include <QPainter>

namespace mirelle::bench {

PlainPaint::PlainPaint(const QImage& image) : image_(image) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(image.size());
    show();
    PaintAll();
}

void PlainPaint::paintEvent(QPaintEvent*) {
    QPainter(this).drawImage(0, 0, image_);
}

} // namespace mirelle::bench
