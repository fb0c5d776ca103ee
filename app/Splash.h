// The splash: it comes first, counts eleven ticks of its timer and makes way for the main window. A click
// holds it, a second click lets it go on.
#pragma once

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ports/Process.h"
#include "forms/ports/Screen.h"
#include "forms/ports/Time.h"

namespace mirelle {

class Splash : public Form {
public:
    // It asks for no more than these: it is there before the rest of the program is made.
    Splash(Screen& screen, EventPump& pump, Process& process);

    void Load();
    // The splash is over: it is unloaded and the main window is to be shown.
    Event<> Finished;

    Label Label1{*this, "Label1"}, lblVersion{*this, "lblVersion"}, lblDate{*this, "lblDate"};
    TimerControl Timer1{*this, "Timer1"};

private:
    void Tick();
    void ToggleWait();

    Screen& screen_;
    EventPump& pump_;
    int ticks_ = 0;
};

} // namespace mirelle
