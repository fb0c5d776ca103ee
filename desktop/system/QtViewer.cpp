#include "desktop/system/QtViewer.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace mirelle {

void QtViewer::Open(const std::string& target, const std::string&, int) {
    const QString text = QString::fromStdString(target);
    const bool isAddress = text.contains("://");
    if (!isAddress && !QFileInfo::exists(text)) return; // a missing document is not told
    QDesktopServices::openUrl(isAddress ? QUrl(text) : QUrl::fromLocalFile(text));
}

} // namespace mirelle
