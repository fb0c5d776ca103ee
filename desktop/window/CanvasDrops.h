// What is dragged over from other programs and let go on the canvas: a picture file or a picture.
#pragma once

#include <QObject>

class QMimeData;
class QWidget;

namespace mirelle {

class FrmPicX;
struct DroppedData;

class CanvasDrops : public QObject {
    Q_OBJECT

public:
    CanvasDrops(FrmPicX& form, QWidget& canvas);

    // Whether something in it can come in: a file of the kinds that the program reads, by its name, or a
    // picture. Whether the file really is one shows when it is opened.
    static bool Takes(const QMimeData& data);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Bring(const DroppedData& data);

    FrmPicX& form_;
};

} // namespace mirelle
