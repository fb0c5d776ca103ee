// The right column: the Material Image with its thumbnail, the section for names, the jumps, the palette
// where it is open, and the library's drive, folder and file lists.
#pragma once

#include "desktop/window/Panel.h"

namespace mirelle {

class MaterialPanel : public Panel {
    Q_OBJECT

public:
    MaterialPanel(Binder& binder, QWidget* parent);

    // How far down the SuperBatch panel may lie over this one: down to where the library begins.
    int UpperPart() const;
    // What another panel lies over is not to be come to by the keyboard either. Its place stays.
    void CoverUpperPart(bool covered);

private:
    QWidget* material_;
};

} // namespace mirelle
