#include "desktop/window/MaterialPanel.h"

#include "desktop/look/Tokens.h"
#include "desktop/window/FileSection.h"
#include "desktop/window/LibraryPanel.h"
#include "desktop/window/MaterialSection.h"
#include "desktop/window/NamePanel.h"
#include "desktop/window/PalettePanel.h"

namespace mirelle {
namespace {

// How the Material Image and the file lists part the height that nothing else needs.
constexpr int kMaterialShare = 1;
constexpr int kFilesShare = 1;

} // namespace

MaterialPanel::MaterialPanel(Binder& binder, QWidget* parent) : Panel(parent) {
    material_ = new MaterialSection(binder, this);
    QSizePolicy policy = material_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    material_->setSizePolicy(policy);
    QWidget* const sections[] = {material_, new NamePanel(binder, this), new PalettePanel(binder, this),
                                 new LibraryPanel(binder, this)};
    Contents().setSpacing(look::kSpace);
    for (QWidget* section : sections)
        Contents().addWidget(section);
    Contents().addWidget(new FileSection(binder, this));
    Contents().setStretchFactor(material_, kMaterialShare);
    Contents().setStretch(Contents().count() - 1, kFilesShare);
    Bind(binder, binder.TheForm().Frame4);
}

int MaterialPanel::UpperPart() const {
    return material_->geometry().bottom() + 1 + look::kSpaceSmall;
}

void MaterialPanel::CoverUpperPart(bool covered) {
    if (material_->isHidden() != covered) material_->setVisible(!covered);
}

} // namespace mirelle
