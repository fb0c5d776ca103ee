// The Material Image on its scrolled background: sending it back to the canvas, picking colours from it, its
// scroll bars and its lock.
#pragma once

#include "forms/Event.h"

namespace mirelle {

class FrmPicX;

class MaterialPreview {
public:
    explicit MaterialPreview(FrmPicX& form);

private:
    void PictureChanged();
    void MouseDown(const MouseArgs& mouse);
    void MouseMove(const MouseArgs& mouse);
    void SendToCanvas();
    void MakeHandCopy();
    void SampleColor(float x, float y);
    void ScrollAcross();
    void ScrollDown();

    FrmPicX& form_;
};

} // namespace mirelle
