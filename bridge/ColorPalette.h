// The colour palette: colours picked off the chart fill ten slots, and each slot is sent as a small painted
// face.
#pragma once

#include "forms/Event.h"

namespace mirelle {

class FrmPicX;

class ColorPalette {
public:
    explicit ColorPalette(FrmPicX& form);

private:
    void ShowColorUnder(const MouseArgs& mouse);
    void SampleChart(const MouseArgs& mouse);
    void ChartClicked();
    void PaintCanvasBackground();
    void SendColor(int slot);
    void SendBareFace();
    void ClearPalette();
    void TogglePanel();

    FrmPicX& form_;
};

} // namespace mirelle
