#include "desktop/window/MaterialPanel.h"

#include "desktop/look/Tokens.h"
#include "desktop/window/FileSection.h"
#include "desktop/window/LibraryPanel.h"
#include "desktop/window/MaterialSection.h"
#include "desktop/window/NamePanel.h"
#include "desktop/window/PalettePanel.h"

namespace mirelle {

MaterialPanel::MaterialPanel(Binder& binder, QWidget* parent) : Panel(parent) {
    material_ = new MaterialSection(binder, this);
    QWidget* const sections[] = {material_, new NamePanel(binder, this), new PalettePanel(binder, this),
                                 new LibraryPanel(binder, this)};
    Contents().setSpacing(look::kSpace);
    for (QWidget* section : sections)
        Contents().addWidget(section);
    Contents().addWidget(new FileSection(binder, this), 1);
    Bind(binder, binder.TheForm().Frame4);
}

int MaterialPanel::UpperPart() const {
    return material_->geometry().bottom() + 1 + look::kSpace;
}

} // namespace mirelle
