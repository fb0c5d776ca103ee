#include "desktop/window/CanvasDrops.h"

#include "app/FrmPicX.h"
#include "desktop/binding/HandlerGuard.h"
#include "desktop/pictures/QtImages.h"
#include "desktop/system/PathText.h"

#include <QDropEvent>
#include <QImage>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include <algorithm>

namespace mirelle {
namespace {

constexpr const char* kKinds[] = {".bmp",
                                  ".dib",
                                  ".gif",
                                  ".jpg",
                                  ".jpeg",
                                  ".ico",
                                  ".cur"
#ifdef _WIN32
                                  ,
                                  ".wmf",
                                  ".emf"
#endif
};

bool IsPictureFile(const QUrl& url) {
    if (!url.isLocalFile()) return false;
    const QString file = url.toLocalFile();
    return std::ranges::any_of(
        kKinds, [&](const char* kind) { return file.endsWith(QLatin1String(kind), Qt::CaseInsensitive); });
}

std::vector<std::string> PictureFiles(const QMimeData& data) {
    std::vector<std::string> files;
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls) {
        if (IsPictureFile(url)) files.push_back(PathText(url.toLocalFile()));
    }
    return files;
}

// A file rather than the picture that comes along with it: the file is the original.
DroppedData Taken(const QMimeData& data) {
    DroppedData taken;
    taken.files = PictureFiles(data);
    if (!taken.files.empty() || !data.hasImage()) return taken;
    const auto image = qvariant_cast<QImage>(data.imageData());
    if (!image.isNull()) taken.bitmap = Picture(OpaqueBitmap(image));
    return taken;
}

} // namespace

CanvasDrops::CanvasDrops(FrmPicX& form, QWidget& canvas) : QObject(&canvas), form_(form) {
    canvas.setAcceptDrops(true);
    canvas.installEventFilter(this);
}

bool CanvasDrops::Takes(const QMimeData& data) {
    return data.hasImage() || !PictureFiles(data).empty();
}

bool CanvasDrops::eventFilter(QObject* watched, QEvent* event) {
    const bool over = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
    if (!over && event->type() != QEvent::Drop) return QObject::eventFilter(watched, event);
    auto& drop = static_cast<QDropEvent&>(*event);
    if (!drop.mimeData() || !Takes(*drop.mimeData())) {
        drop.ignore();
        return true;
    }
    drop.setDropAction(Qt::CopyAction); // the original stays where it is
    drop.accept();
    // The other program is not kept waiting while a message box stands.
    if (!over) {
        const DroppedData data = Taken(*drop.mimeData());
        QMetaObject::invokeMethod(
            this, [this, data] { Bring(data); }, Qt::QueuedConnection);
    }
    return true;
}

void CanvasDrops::Bring(const DroppedData& data) {
    RunGuarded(form_.ports.dialogs, [&] { form_.OLEDragDrop(data); });
}

} // namespace mirelle
