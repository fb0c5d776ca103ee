// The splash: it comes first, counts eleven ticks of its timer and makes way for the main window. A click
// holds it, a second click lets it go on.
#pragma once

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/Ports.h"

namespace mirelle {

class Splash : public Form {
public:
    explicit Splash(Ports ports);

    void Load();
    // The splash is over: it is unloaded and the main window is to be shown.
    Event<> Finished;

    Label Label1{*this, "Label1"}, lblVersion{*this, "lblVersion"}, lblDate{*this, "lblDate"};
    TimerControl Timer1{*this, "Timer1"};

private:
    void Tick();
    void ToggleWait();

    Ports ports_;
    int ticks_ = 0;
};

} // namespace mirelle
