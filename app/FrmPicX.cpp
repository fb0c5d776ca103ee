#include "app/FrmPicX.h"

#include "app/DesignValues.h"
#include "app/Layout.h"
#include "library/FileNumber.h"
#include "library/PrefixTable.h"

#include <algorithm>

namespace mirelle {
namespace {

constexpr ScreenSize kDesignClientSize{1024, 700};

constexpr PictureBox::Units kPixelBox{ScaleUnit::Pixels, ScaleUnit::Pixels, true};
constexpr PictureBox::Units kTwipBox{ScaleUnit::Twips, ScaleUnit::Twips, true};
// The gradient's boxes: placed in twips, drawn in pixels, sized by handlers.
constexpr PictureBox::Units kGradientBox{ScaleUnit::Twips, ScaleUnit::Pixels, false};

constexpr Color kHoverBlue = 0xFF8080;

constexpr std::array kPreviewablePatterns = {"*.jpg", "*.jpeg", "*.bmp", "*.gif"};

} // namespace

FrmPicX::FrmPicX(Ports thePorts)
    : Form("FrmPicX", thePorts.screen, kDesignClientSize), ports(thePorts), CDialog1(thePorts.dialogs),
      PicImage(*this, "PicImage", kPixelBox), picSmall(*this, "picSmall", kPixelBox),
      picSmall2(*this, "picSmall2", kPixelBox), PicScroll(*this, "PicScroll", kPixelBox),
      Picture7(*this, "Picture7", kTwipBox), Drive5(*this, "Drive5", thePorts.files),
      Dir5(*this, "Dir5", thePorts.files), File5(*this, "File5", thePorts.files),
      Picture2(*this, "Picture2", kPixelBox), Picture3(*this, "Picture3", kTwipBox),
      Pic1(*this, "Pic1", kTwipBox), Picture1(*this, "Picture1", kTwipBox),
      picTemp(*this, "picTemp", kTwipBox), Picture1b(*this, "Picture1b", kPixelBox),
      Picture4(*this, "Picture4", kPixelBox), pic1grad(*this, "pic1grad", kGradientBox),
      pic2grad(*this, "pic2grad", kGradientBox), picDest(*this, "picDest", kGradientBox),
      Picture5(*this, "Picture5", kGradientBox), Picture6(*this, "Picture6", kPixelBox),
      PicSwap1(*this, "PicSwap1", kGradientBox), PicSwap2(*this, "PicSwap2", kGradientBox) {
    ApplyDesignValues(*this);
    Activate.Connect([this] { OnActivate(); });
    Resize.Connect([this] { OnResize(); });
    QueryUnload.Connect([this] { ports.process.End(); });
    ConnectHoverFeedback();
}

void FrmPicX::Load() {
    FirstActivate = true;
    ClipboardIsSource = false;
    bool topmost = true;
    SetTopMostWindow(topmost);
    // The window's twips go into the box's pixels as they are.
    PicImage.Left = Left();
    PicImage.Top = Top();
    ResumeNext([this] { PicImage.Width = Width - 100; });
    PicImage.Height = Height();
    cmdOpen2Combo.Click();
    if (textProfileName.ListCount() == 0) {
        for (const PrefixRow& row : kPrefixes)
            textProfileName.AddItem(row.prefix);
    }
    ResumeNext([this] { File5.Selected(0) = true; });
    Picture = PicImage.Picture;
}

void FrmPicX::SetTopMostWindow(bool& topmost) {
    Topmost = topmost;
    topmost = ports.screen.SetTopMost(topmost);
}

std::string FrmPicX::AppPath(const std::string& below) const {
    std::string path = ports.files.AppPath();
    if (path.empty() || path.back() != ports.files.Separator()) path += ports.files.Separator();
    path += below;
    std::ranges::replace(path, '/', ports.files.Separator());
    return path;
}

void FrmPicX::OnActivate() {
    ckIncrement.Value = kChecked;
    if (Combo5.ListCount() == 0) {
        for (const char* pattern : kPreviewablePatterns)
            Combo5.AddItem(pattern);
    }
    ResumeNext([this] { Combo5.SetListIndex(0); });
    File5.SetPattern(Combo5.Text);
    if (WindowState == kWindowNormal && FirstActivate) ListTheLibrary();
}

void FrmPicX::ListTheLibrary() {
    ResumeNext([this] { Dir5.SetPath(AppPath("Support/Materials/")); });
    for (int row = 0; row < File5.ListCount(); ++row) {
        Label8(46).Caption = CountText(File5.ListCount());
        ResumeNext([&] { ListHigh.AddItem(CStr(NumberOfFileName(File5.List(row)))); });
    }
    ResumeNext([this] { File5.Selected(0) = true; });
    Picture = PicImage.Picture;
    Refresh();
    FirstActivate = false;
}

void FrmPicX::OnResize() {
    if (WindowState == kWindowMaximized) {
        if (ckAutoPaste.Value == kChecked) Command5.Click();
        LayOutLarge(*this);
    } else if (WindowState == kWindowNormal) {
        LayOutNormal(*this);
    }
}

void FrmPicX::ConnectHoverFeedback() {
    const auto titleBack = [this](const MouseArgs&) { Caption = App::Title; };
    const auto frameDark = [this](const MouseArgs&) { FrameRGBFX2.BackColor = 0; };
    const auto frameLit = [this](const MouseArgs&) { FrameRGBFX2.BackColor = kHoverBlue; };
    const auto pointerBack = [this](const MouseArgs&) { MousePointer = kPointerDefault; };

    for (Control* panel : {&Frame1, &Frame3, &Frame4, &Frame5})
        panel->MouseMove.Connect(titleBack);
    Label2.ForEach([&](Label& label) { label.MouseMove.Connect(titleBack); });
    for (Control* control : {static_cast<Control*>(&Frame3), static_cast<Control*>(&Frame5),
                             static_cast<Control*>(&FrameRGBFX), static_cast<Control*>(&ckUseFormCanvas)}) {
        control->MouseMove.Connect(frameDark);
    }
    for (Control* control : {static_cast<Control*>(&ckApplyRGB), static_cast<Control*>(&cmdRGBUndo),
                             static_cast<Control*>(&cmdSetMain)}) {
        control->MouseMove.Connect(frameLit);
    }
    Command3.MouseMove.Connect([this](const MouseArgs&) { Command3.ToolTipText = ports.files.AppPath(); });
    cmdShowFrames.MouseMove.Connect(pointerBack);
}

} // namespace mirelle
