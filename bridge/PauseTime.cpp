#include "bridge/PauseTime.h"

#include "forms/Ports.h"

namespace mirelle {
namespace {

// Tells the pump of the pause for as long as it lives.
class PauseBracket {
public:
    PauseBracket(EventPump& pump, double seconds) : pump_(pump) { pump_.PauseBegins(seconds); }
    ~PauseBracket() { pump_.PauseEnds(); }
    PauseBracket(const PauseBracket&) = delete;
    PauseBracket& operator=(const PauseBracket&) = delete;

private:
    EventPump& pump_;
};

// A pause begun in the last second before midnight does not end by itself: the clock falls back to zero.
void Pause(Ports& ports, double delay) {
    const PauseBracket bracket(ports.pump, delay);
    const double start = ports.pump.Timer();
    while (ports.pump.Timer() < start + delay) {
        ports.pump.DoEvents(PumpSite::Pause);
        if (ports.keyboard.EscapeWentDown()) return;
    }
}

} // namespace

void PauseTime(Ports& ports) {
    Pause(ports, 1);
}

void PauseTime2(Ports& ports) {
    Pause(ports, 1.25);
}

} // namespace mirelle
