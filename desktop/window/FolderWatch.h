// Keeps the folder list true while the program runs: a folder that another program makes or takes away in the
// folder shown comes into the list or leaves it. The list of files is left alone; its button reads it anew.
#pragma once

#include <QFileSystemWatcher>
#include <QTimer>

namespace mirelle {

class FrmPicX;

class FolderWatch : public QObject {
    Q_OBJECT

public:
    explicit FolderWatch(FrmPicX& form);

    // Looks at the disk now: at the folders, and at the drives there are to choose from.
    void Look();

private:
    void WatchShownFolder();

    FrmPicX& form_;
    QFileSystemWatcher watcher_;
    QTimer soon_; // many changes at once are one
};

} // namespace mirelle
