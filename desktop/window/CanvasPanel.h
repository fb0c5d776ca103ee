// The lower panel: what brings pictures to the canvas, the size of a click's crop, colours, the switches of
// the FX panels, the hide buttons, and the thin line that tells that long work is under way.
#pragma once

#include "desktop/window/Panel.h"

namespace mirelle {

namespace look {
class ProgressLine;
}

class CanvasPanel : public Panel {
    Q_OBJECT

public:
    CanvasPanel(Binder& binder, QWidget* parent);

    look::ProgressLine& Progress() { return *progress_; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    look::ProgressLine* progress_;
};

} // namespace mirelle
