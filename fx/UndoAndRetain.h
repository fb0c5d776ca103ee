// What the panel's own controls do to its three pictures: Retain, Undo, Revert, and the reset of the colour
// sliders.
#pragma once

namespace mirelle {

class FrmPicX;

class UndoAndRetain {
public:
    explicit UndoAndRetain(FrmPicX& form);

private:
    void Retain();
    void Undo();
    void ResetSliders();
    void Revert();
    void ReadClipboardAgain();
    void ReadFileAgain();

    FrmPicX& form_;
};

} // namespace mirelle
