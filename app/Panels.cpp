#include "app/Panels.h"

#include "app/FrmPicX.h"
#include "forms/Text.h"

namespace mirelle {
namespace {

// The width of the form's own scale in full screen; the same handlers then read positions in those units.
constexpr float kFullScreenScaleWidth = 529;

} // namespace

Panels::Panels(FrmPicX& form) : form_(form) {
    form_.cmdHideFrame(0).Click.Connect([this] { ToggleRightSide(); });
    form_.cmdHideFrame(1).Click.Connect([this] { HideAllFrames(); });
    form_.cmdShowFrames.Click.Connect([this] { ShowAllFrames(); });
    form_.Command18(0).Click.Connect([this] { SetOnTop(true); });
    form_.Command18(1).Click.Connect([this] { SetOnTop(false); });
    form_.cmdFullScreen.Click.Connect([this] { ToggleFullScreen(); });
    form_.cmdFullScreen.MouseMove.Connect([this](const MouseArgs&) {
        form_.cmdFullScreen.ToolTipText =
            form_.WindowState == kWindowMaximized ? "Normal Form Size" : "Fullscreen";
    });
    form_.lblPubPath.DblClick.Connect([this] { CopyPath(); });
    form_.cmdMat2Corvane.MouseMove.Connect([this](const MouseArgs&) {
        form_.cmdMat2Corvane.ToolTipText =
            "Send \"" + Trim(form_.textProfileName.Text()) +
            "\" material name to main Corvane materials textbox for face material";
    });
    ConnectFloatingPanel();
}

void Panels::ShowRightSide(bool visible) {
    for (Control* panel : {static_cast<Control*>(&form_.Frame3), static_cast<Control*>(&form_.Frame4),
                           static_cast<Control*>(&form_.Frame6), static_cast<Control*>(&form_.Frame7),
                           static_cast<Control*>(&form_.picSmall)}) {
        panel->Visible = visible;
    }
}

// The SuperBatch panel goes with the right side and does not come back with it.
void Panels::ToggleRightSide() {
    const bool hide = form_.Frame4.Visible;
    ShowRightSide(!hide);
    if (hide) form_.Frame8.Visible = false;
}

void Panels::HideAllFrames() {
    form_.FrShowFrames(0).Visible = true;
    form_.cmdShowFrames.Visible = true;
    ShowRightSide(false);
    form_.Frame5.Visible = false;
}

void Panels::ShowAllFrames() {
    form_.Frame5.Visible = true;
    ShowRightSide(true);
    form_.cmdShowFrames.Visible = false;
    form_.FrShowFrames(0).Visible = false;
}

void Panels::ConnectFloatingPanel() {
    Frame& panel = form_.FrShowFrames(0);
    const auto showDragPointer = [this](const MouseArgs&) { form_.MousePointer = kPointerSizeAll; };
    panel.MouseDown.Connect(showDragPointer);
    panel.MouseMove.Connect(showDragPointer);
    form_.DragOver.Connect([this](Control&, float x, float y) {
        form_.PanelDropX = x;
        form_.PanelDropY = y;
    });
    form_.DragDrop.Connect([](Control& dropped, float x, float y) {
        dropped.Top = y - dropped.Height / 2;
        dropped.Left = x - dropped.Width / 2;
    });
    panel.MouseUp.Connect([this, &panel](const MouseArgs&) {
        panel.Left = static_cast<float>(form_.PanelDropX.Number());
        panel.Top = static_cast<float>(form_.PanelDropY.Number());
    });
}

void Panels::SetOnTop(bool onTop) {
    form_.SetTopMostWindow(onTop);
}

void Panels::ToggleFullScreen() {
    if (form_.WindowState == kWindowNormal) {
        form_.SetScaleWidth(kFullScreenScaleWidth);
        form_.WindowState = kWindowMaximized;
    } else if (form_.WindowState == kWindowMaximized) {
        form_.WindowState = kWindowNormal;
        form_.SetScaleWidth(kFullScreenScaleWidth);
        form_.Frame8.Height = 276;
        form_.Frame8.Width = 270;
    }
}

void Panels::CopyPath() {
    form_.ports.clipboard.Clear();
    form_.ports.clipboard.SetText(Trim(form_.lblPubPath.Caption()));
}

} // namespace mirelle
