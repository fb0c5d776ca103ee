// The panels over the canvas: hiding and showing them, the floating panel's drag, keeping the window on top,
// the full screen, and the small controls that belong to no other subject.
#pragma once

#include "forms/Event.h"

namespace mirelle {

class FrmPicX;

class Panels {
public:
    explicit Panels(FrmPicX& form);

private:
    void ToggleRightSide();
    void HideAllFrames();
    void ShowAllFrames();
    void ShowRightSide(bool visible);
    void ConnectFloatingPanel();
    void SetOnTop(bool onTop);
    void ToggleFullScreen();
    void CopyPath();

    FrmPicX& form_;
};

} // namespace mirelle
