// The kernel buttons of the "Image FX" panel: each runs its kernel on the Retained picture and shows the
// result on the canvas; and the two smudgers, which blur and retain again and again.
#pragma once

#include "fx/IMFXModule1.h"
#include "fx/KernelTable.h"

namespace mirelle {

class FrmPicX;

class KernelEffects {
public:
    explicit KernelEffects(FrmPicX& form);

private:
    void RunKernelFX(const KernelButton& button);
    void PaintKernel(const KernelButton& button);
    // Each pass runs the blur given, retains its result and lets other events run; Escape ends it.
    template <class Blur>
    void Smudge(Blur blur);

    FrmPicX& form_;
    IMFXModule1 module_;
};

} // namespace mirelle
