#include "bridge/ColorPalette.h"

#include "app/FrmPicX.h"
#include "bridge/ColorChart.h"
#include "bridge/RubyConsoleLink.h"
#include "forms/Color.h"
#include "library/NameSuffix.h"

namespace mirelle {

ColorPalette::ColorPalette(FrmPicX& form) : form_(form) {
    form_.Picture2.Picture = MakeColorChart();
    form_.Picture2.MouseMove.Connect([this](const MouseArgs& mouse) { ShowColorUnder(mouse); });
    form_.Picture2.MouseDown.Connect([this](const MouseArgs& mouse) { SampleChart(mouse); });
    form_.Picture2.Click.Connect([this] { ChartClicked(); });
    form_.Picture2.DblClick.Connect([this] { PaintCanvasBackground(); });
    form_.cmdColor.OnClick([this](int slot) { SendColor(slot); });
    form_.Command1x.Click.Connect([this] { SendBareFace(); });
    form_.Command4.Click.Connect([this] { ClearPalette(); });
    form_.cmdColorPick.Click.Connect([this] { TogglePanel(); });
}

void ColorPalette::ShowColorUnder(const MouseArgs& mouse) {
    form_.Frame2.BackColor = form_.Picture2.Point(mouse.x, mouse.y);
}

void ColorPalette::SampleChart(const MouseArgs& mouse) {
    const Color color = form_.Picture2.Point(mouse.x, mouse.y);
    form_.Frame2.BackColor = color;
    form_.SampledColorValue = Long(color);
    if (form_.ckSample.Value == kChecked) {
        form_.picSmall.Picture = Picture();
        form_.picSmall.BackColor = color;
    }
    const ColorParts parts = PartsOf(color);
    for (int slot = 0; slot < form_.Text2x.Count(); ++slot) {
        if (!form_.Text2x(slot).Text().empty()) continue;
        form_.Text2x(slot).Text = ColorText(parts);
        form_.cmdColor(slot).BackColor = ColorOf(parts);
        return;
    }
}

// A click comes without a place: it takes the chart's corner, after the press has sampled.
void ColorPalette::ChartClicked() {
    if (form_.Check1.Value == kChecked) {
        ResumeNext([this] { TakeSuffix(form_, SuffixOfNewSample(form_)); });
    }
    if (form_.ckLock.Value == kUnchecked && form_.picSmall.Width != 300) {
        form_.picSmall.Width = 245;
        form_.picSmall.Height = 200;
    }
    form_.Frame2.BackColor = form_.Picture2.Point(0, 0);
}

void ColorPalette::PaintCanvasBackground() {
    const ColorParts parts = PartsOf(ToLong(form_.SampledColorValue.Number()));
    form_.Frame2.BackColor = form_.Picture2.Point(0, 0);
    form_.BackColor = ColorOf(parts);
    if (form_.ckUseFormCanvas.Value != kChecked) return;
    form_.ckUseFormCanvas.UserClick();
    form_.ckUseFormCanvas.UserClick();
}

// Both face sends go on after an error: without a console the lines go to whatever has the focus.
void ColorPalette::SendColor(int slot) {
    RubyConsoleLink link(form_.ports.console);
    ResumeNext([&] { link.CreateShell(); });
    ResumeNext([&] { link.Activate(); });
    const LineFields fields{.name = {}, .path = {}, .size = {}, .rgb = form_.Text2x(slot).Text()};
    ResumeNext([&] {
        link.Send({Line::P1, Line::P2, Line::F1, Line::F2, Line::F3, Line::F4, Line::F5, Line::F6, Line::C1,
                   Line::C2},
                  fields);
    });
}

void ColorPalette::SendBareFace() {
    RubyConsoleLink link(form_.ports.console);
    ResumeNext([&] { link.Activate(); });
    ResumeNext([&] { link.CreateShell(); });
    ResumeNext([&] {
        link.Send({Line::P1, Line::P2, Line::F1, Line::F2, Line::F3, Line::F4, Line::F5, Line::F6});
    });
}

void ColorPalette::ClearPalette() {
    form_.List1.Clear();
    for (int slot = 0; slot < form_.Text2x.Count(); ++slot) {
        form_.Text2x(slot).Text = "";
        form_.cmdColor(slot).BackColor = 0;
    }
}

void ColorPalette::TogglePanel() {
    form_.FramePics.Height = 3650;
    form_.FramePics.Width = 3945;
    const bool show = !form_.FramePics.Visible;
    form_.FramePics.Visible = show;
    for (Control* control : {static_cast<Control*>(&form_.Frame3), static_cast<Control*>(&form_.ckLock),
                             static_cast<Control*>(&form_.ckKeep), static_cast<Control*>(&form_.ckOnly)}) {
        control->Visible = !show;
    }
    // Only the large window gives the file area to the panel; hiding it brings the area back in any.
    if (show && form_.WindowState != kWindowMaximized) return;
    for (Control* control : {static_cast<Control*>(&form_.Dir5), static_cast<Control*>(&form_.Drive5),
                             static_cast<Control*>(&form_.Combo5), static_cast<Control*>(&form_.File5),
                             static_cast<Control*>(&form_.Label8(46))}) {
        control->Visible = !show;
    }
}

} // namespace mirelle
