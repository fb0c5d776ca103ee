#include "desktop/window/FolderWatch.h"

#include "app/FrmPicX.h"
#include "desktop/binding/Updater.h"

#include <QFile>

namespace mirelle {
namespace {

constexpr int kMillisecondsToSettle = 100;

} // namespace

FolderWatch::FolderWatch(FrmPicX& form) : form_(form) {
    soon_.setSingleShot(true);
    soon_.setInterval(kMillisecondsToSettle);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, &soon_, qOverload<>(&QTimer::start));
    connect(&soon_, &QTimer::timeout, this, [this] { form_.Dir5.FollowDisk(); });
    ShowWhenChanged(form.Dir5, this, [this] { WatchShownFolder(); });
}

void FolderWatch::Look() {
    form_.Dir5.FollowDisk();
    form_.Drive5.Refresh();
    WatchShownFolder(); // one that went and came back has to be watched anew
}

// A folder that is not on this machine's disk is not watched.
void FolderWatch::WatchShownFolder() {
    const QString shown = QFile::decodeName(form_.Dir5.Path().c_str());
    const QStringList watched = watcher_.directories();
    if (watched.contains(shown)) return;
    if (!watched.isEmpty()) watcher_.removePaths(watched);
    if (QFile::exists(shown)) watcher_.addPath(shown);
}

} // namespace mirelle
