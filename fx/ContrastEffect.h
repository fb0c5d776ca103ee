// The two contrast buttons: cmdCont asks for a percentage, cmdCont33 takes 30. The result stays on the canvas
// picture and a further contrast adds to it; nothing is retained and no undo copy is taken.
#pragma once

#include "forms/Variant.h"

namespace mirelle {

class FrmPicX;

class ContrastEffect {
public:
    explicit ContrastEffect(FrmPicX& form);

private:
    void AskAndApply();
    void ApplyFast();
    void ApplyContrast(const Variant& percent);

    FrmPicX& form_;
};

} // namespace mirelle
