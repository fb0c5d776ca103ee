// A picture scaled to the room that there is, smooth, in the middle. Made anew only when the picture or the
// room changes. What a handler is told of the mouse are the picture's own pixels.
#pragma once

#include "forms/Picture.h"

#include <QPixmap>
#include <QWidget>

#include <functional>
#include <optional>

class QMouseEvent;

namespace mirelle {

class Dialogs;
class ImageControl;
class PictureBox;
class Watched;

class FittedView : public QWidget {
    Q_OBJECT

public:
    // What is shown, and the proportions that it is shown in.
    struct Shown {
        Picture picture;
        QSizeF proportions; // empty: the picture's own
    };

    FittedView(Watched& source, std::function<Shown()> read, QWidget* parent);

    // A picture that fills the room takes its proportions; one that does not is only made smaller where the
    // room is too small.
    void SetFilling(bool filling) { filling_ = filling; }
    // The picture's pixel under the mouse; nothing beside the picture.
    std::optional<QPoint> PixelAt(const QMouseEvent& event) const;
    QSize sizeHint() const override { return hint_; }
    void SetSizeHint(QSize hint) { hint_ = hint; }

    // Nothing of a box that is blank.
    static FittedView* Of(PictureBox& box, QWidget* parent);
    // In the proportions that the program gives the control.
    static FittedView* Of(ImageControl& image, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect PlaceInDevicePixels() const;

    std::function<Shown()> read_;
    Shown shown_;
    QPixmap scaled_;
    bool filling_ = false;
    QSize hint_{64, 48};
};

} // namespace mirelle
