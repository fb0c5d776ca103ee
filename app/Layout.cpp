#include "app/Layout.h"

#include "app/FrmPicX.h"

#include <array>

namespace mirelle {
namespace {

using Measure = Property<float> Control::*;
using Pick = Control& (*)(FrmPicX&);

struct FixedRow {
    Pick control;
    Measure measure;
    float value;
};

// A control of the form, by name, as a row of a table wants it.
#define MIRELLE_CONTROL(name) +[](FrmPicX& form) -> Control& { return form.name; }
constexpr Measure kLeft = &Control::Left;
constexpr Measure kTop = &Control::Top;
constexpr Measure kWidth = &Control::Width;
constexpr Measure kHeight = &Control::Height;

// The large layout's fixed numbers; what follows the window stands in LayOutLarge.
const std::array kLargeRows = {
    FixedRow{MIRELLE_CONTROL(Frame7), kTop, 300},
    FixedRow{MIRELLE_CONTROL(Frame8), kHeight, 300},
    FixedRow{MIRELLE_CONTROL(Frame8), kWidth, 262},
    FixedRow{MIRELLE_CONTROL(List2), kWidth, 3835},
    FixedRow{MIRELLE_CONTROL(List2), kLeft, 50},
    FixedRow{MIRELLE_CONTROL(Drive5), kTop, 4600},
    FixedRow{MIRELLE_CONTROL(Combo5), kTop, 4600},
    FixedRow{MIRELLE_CONTROL(Label8(46)), kTop, 4600},
    FixedRow{MIRELLE_CONTROL(cmdFullScreen), kTop, 4600},
    FixedRow{MIRELLE_CONTROL(cmdRefreshFile), kTop, 4600},
    FixedRow{MIRELLE_CONTROL(File5), kHeight, 2750},
    FixedRow{MIRELLE_CONTROL(FrameMatCanvas), kHeight, 3490},
    FixedRow{MIRELLE_CONTROL(PicScroll), kHeight, 3490},
    FixedRow{MIRELLE_CONTROL(HSImage), kTop, 222},
    FixedRow{MIRELLE_CONTROL(HSImage), kWidth, 252},
    FixedRow{MIRELLE_CONTROL(VSImage), kHeight, 222},
    FixedRow{MIRELLE_CONTROL(VSImage), kLeft, 252},
    FixedRow{MIRELLE_CONTROL(FrameMatCanvas2), kWidth, 425},
};

const std::array kNormalRows = {
    FixedRow{MIRELLE_CONTROL(cmdFullScreen), kTop, 3435},
    FixedRow{MIRELLE_CONTROL(Frame5), kTop, 440},
    FixedRow{MIRELLE_CONTROL(Frame5), kLeft, -36},
    FixedRow{MIRELLE_CONTROL(FrameMatCanvas), kHeight, 3090},
    FixedRow{MIRELLE_CONTROL(VSImage), kLeft, 258},
    FixedRow{MIRELLE_CONTROL(VSImage), kHeight, 197},
    FixedRow{MIRELLE_CONTROL(HSImage), kWidth, 259},
    FixedRow{MIRELLE_CONTROL(HSImage), kTop, 198},
    FixedRow{MIRELLE_CONTROL(FrameMatCanvas2), kWidth, 545},
    FixedRow{MIRELLE_CONTROL(Frame4), kTop, -1},
    FixedRow{MIRELLE_CONTROL(Frame4), kLeft, 338},
    FixedRow{MIRELLE_CONTROL(Frame6), kTop, -2},
    FixedRow{MIRELLE_CONTROL(Frame6), kLeft, 608},
    FixedRow{MIRELLE_CONTROL(Frame7), kTop, 277},
    FixedRow{MIRELLE_CONTROL(Frame7), kLeft, 346},
    FixedRow{MIRELLE_CONTROL(Frame8), kHeight, 276},
    FixedRow{MIRELLE_CONTROL(List2), kLeft, 75},
    FixedRow{MIRELLE_CONTROL(Drive5), kTop, 3420},
    FixedRow{MIRELLE_CONTROL(Combo5), kTop, 3420},
    FixedRow{MIRELLE_CONTROL(Label8(46)), kTop, 3420},
    FixedRow{MIRELLE_CONTROL(cmdRefreshFile), kTop, 3420},
    FixedRow{MIRELLE_CONTROL(File5), kHeight, 1395},
};

#undef MIRELLE_CONTROL

template <class Rows>
void Apply(const Rows& rows, FrmPicX& form) {
    for (const FixedRow& row : rows)
        row.control(form).*row.measure = row.value;
}

// The place of a right panel: the window's right edge less the panel's width, brought from twips to pixels.
float AtRightEdge(const FrmPicX& form, const Control& panel) {
    return static_cast<float>((form.Left + form.Width - panel.Width * kTwipsPerPixel) * kPixelsPerTwip);
}

// Frame8 lies over the upper part of Frame4, in both layouts.
void PlaceFrame8(FrmPicX& form) {
    form.Frame8.Left = form.Frame4.Left;
    form.Frame8.Top = form.Frame4.Top + 2;
}

void GiveFileAreaToPalette(FrmPicX& form) {
    form.FramePics.Height = 3650;
    form.FramePics.Width = 3945;
    for (Control* control : {static_cast<Control*>(&form.Dir5), static_cast<Control*>(&form.Drive5),
                             static_cast<Control*>(&form.Combo5), static_cast<Control*>(&form.File5),
                             static_cast<Control*>(&form.Label8(46))}) {
        control->Visible = false;
    }
}

} // namespace

void LayOutLarge(FrmPicX& form) {
    form.Frame4.Top = form.Top + 43;
    form.Frame4.Left = AtRightEdge(form, form.Frame4);
    form.Frame4.Height = form.Height();
    form.Frame5.Width = form.Width();
    form.Frame5.Top = static_cast<float>(
        (form.Top + form.Height - form.Frame5.Height * kTwipsPerPixel) * kPixelsPerTwip - 10);
    form.Frame6.Top = form.Top + 42;
    form.Frame6.Left = AtRightEdge(form, form.Frame6);
    form.Frame6.Height = form.Height();
    form.Frame7.Left = form.Frame4.Left + 1;
    form.Frame7.Height = form.Height();
    Apply(kLargeRows, form);
    PlaceFrame8(form);
    if (form.FramePics.Visible) GiveFileAreaToPalette(form);
}

void LayOutNormal(FrmPicX& form) {
    Apply(kNormalRows, form);
    PlaceFrame8(form);
}

} // namespace mirelle
