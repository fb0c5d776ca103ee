#include "desktop/system/QtClipboard.h"

#include "codecs/PictureLimits.h"
#include "desktop/canvas/PictureImage.h"
#include "desktop/pictures/QtImages.h"
#include "forms/RunTimeError.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

namespace mirelle {
namespace {

// An image that stands on its own: the clipboard may outlive the picture's holders.
QImage OwnImageOf(const Picture& picture) {
    QImage image = ImageOver(picture).convertToFormat(QImage::Format_RGB888);
    image.detach();
    return image;
}

// An owner that died, or that does not answer, leaves the empty picture after Qt's own bounded wait; so does
// a picture that is larger than one of a file may be, or than the memory at hand.
Picture Fetched(const QClipboard& clipboard) {
    Picture fetched;
    ResumeNext([&] {
        const QImage image = clipboard.image();
        CheckPictureSize(image.width(), image.height());
        fetched = Picture(OpaqueBitmap(image));
    });
    return fetched;
}

} // namespace

QtClipboard::QtClipboard(QObject* parent) : QObject(parent), clipboard_(*QGuiApplication::clipboard()) {
    connect(&clipboard_, &QClipboard::dataChanged, this, [this] { fetched_.reset(); });
}

bool QtClipboard::HasBitmap() const {
    if (fetched_) return !fetched_->IsEmpty();
    const QMimeData* data = clipboard_.mimeData();
    return data && data->hasImage();
}

Picture QtClipboard::GetData() {
    if (!fetched_) fetched_ = Fetched(clipboard_);
    return *fetched_;
}

void QtClipboard::Clear() {
    clipboard_.clear();
    fetched_.reset();
}

void QtClipboard::SetData(const Picture& bitmap) {
    auto* data = new QMimeData;
    if (!bitmap.IsEmpty()) data->setImageData(OwnImageOf(bitmap));
    clipboard_.setMimeData(data);
    fetched_ = bitmap;
}

void QtClipboard::SetText(const std::string& text) {
    clipboard_.setText(QString::fromStdString(text));
    fetched_.reset();
}

} // namespace mirelle
