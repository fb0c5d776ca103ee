// The jumps to the library's ten folders, and the numbers of the files in the present one.
#pragma once

#include "desktop/window/Parts.h"

#include <QWidget>

namespace mirelle {

class LibraryPanel : public QWidget {
    Q_OBJECT

public:
    LibraryPanel(Binder& binder, QWidget* parent);
};

} // namespace mirelle
