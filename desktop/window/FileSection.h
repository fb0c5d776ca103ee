// The library's lists: drive, folders, files, the kind of files, and the preview of the selected one.
#pragma once

#include "desktop/window/Parts.h"

#include <QWidget>

namespace mirelle {

class FileSection : public QWidget {
    Q_OBJECT

public:
    FileSection(Binder& binder, QWidget* parent);

private:
    QLayout* DriveRow(Parts& parts);
    QLayout* Lists(Parts& parts);
    QWidget* PreviewRoom(Parts& parts);
    QLayout* KindRow(Parts& parts);
};

} // namespace mirelle
