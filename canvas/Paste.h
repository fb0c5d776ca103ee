// The clipboard's way in and out: Command5 brings its bitmap to the canvas, Command8 clears it, Command12
// puts the Material Image on it. A bitmap that is dropped on the canvas goes the same way in.
#pragma once

#include "forms/PictureBox.h"

namespace mirelle {

class FrmPicX;

class Paste {
public:
    explicit Paste(FrmPicX& form);

private:
    void PasteFromClipboard();
    void PasteDropped(const Picture& bitmap);
    void PasteIntoGradient();
    void CopyMaterialImage();
    bool ClipboardHasBitmap() const;
    // Takes the clipboard's bitmap afresh; a holder keeps its picture where there is none to be had.
    void TakeBitmap(PictureBox& holder);

    FrmPicX& form_;
};

} // namespace mirelle
