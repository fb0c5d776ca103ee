// The two pauses between lines. They pump events, so that other handlers can run inside them, and Escape ends
// the one that is going.
#pragma once

namespace mirelle {

struct Ports;

void PauseTime(Ports& ports);  // 1 second
void PauseTime2(Ports& ports); // 1.25 seconds

} // namespace mirelle
