// One paint of a picture as any program would do it: a window as large as the picture, and nothing in it.
#pragma once

#include <QImage>
#include <QWidget>

namespace mirelle::bench {

class PlainPaint : public QWidget {
public:
    // Shown from here on. The image is not copied and has to outlive the window.
    explicit PlainPaint(const QImage& image);

    // Paints it at once.
    void Paint() { repaint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const QImage& image_;
};

} // namespace mirelle::bench
