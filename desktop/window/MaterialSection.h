// The Material Image, full size on its background with scroll bars, and its thumbnail beside it.
#pragma once

#include "desktop/window/Parts.h"

#include <QWidget>

namespace mirelle {

class MaterialSection : public QWidget {
    Q_OBJECT

public:
    MaterialSection(Binder& binder, QWidget* parent);

private:
    QLayout* Head(Parts& parts);
    QWidget* Viewport(Parts& parts);
    QLayout* Side(Parts& parts);
};

} // namespace mirelle
