// Ports: the clock, the pump that lets other events run, and the one key that long handlers look at.
#pragma once

namespace mirelle {

// Where events are pumped from.
enum class PumpSite {
    Handler, // in passing, inside a handler
    Pause,   // one look of a pause's loop
    Pass,    // after one pass of a repeated effect
};

// A day of the calendar; months and days count from 1.
struct CalendarDate {
    int year = 1970;
    int month = 1;
    int day = 1;
};

class EventPump {
public:
    virtual ~EventPump() = default;

    // Timer: the seconds since midnight, with fractions.
    virtual double Timer() = 0;
    // Date: today, where the user is.
    virtual CalendarDate Date() = 0;
    // A free-running counter in milliseconds, for measuring.
    virtual double Milliseconds() = 0;
    // DoEvents: runs the events that wait. Other handlers may run inside it.
    virtual void DoEvents(PumpSite site) = 0;
    // Bracket a pause of so many seconds; between them DoEvents(PumpSite::Pause) is called again and again
    // and may sleep a little.
    virtual void PauseBegins(double seconds) = 0;
    virtual void PauseEnds() = 0;
};

class Keyboard {
public:
    virtual ~Keyboard() = default;

    // Whether Escape went down since the last look, in any window (GetAsyncKeyState(27) is -32767).
    virtual bool EscapeWentDown() = 0;
};

} // namespace mirelle
