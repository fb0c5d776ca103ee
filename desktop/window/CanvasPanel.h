// The lower panel: what brings pictures to the canvas, the size of a click's crop, colours, the switches of
// the FX panels, the hide buttons, and the thin line that tells that long work is under way, with a note
// where it is a batch.
#pragma once

#include "desktop/window/Panel.h"

namespace mirelle {

class BatchNote;
namespace look {
class ProgressLine;
}

class CanvasPanel : public Panel {
    Q_OBJECT

public:
    CanvasPanel(Binder& binder, QWidget* parent);

    // A handler pauses so many seconds; 0 when the pause has ended.
    void ShowPause(double seconds);
    // Something else takes long, or no longer.
    void ShowLongWork(bool going);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowProgress();

    look::ProgressLine* progress_;
    BatchNote* batch_;
    bool pausing_ = false;
    bool working_ = false;
};

} // namespace mirelle
