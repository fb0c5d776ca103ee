// How many cores the program may run on, which can be fewer than the machine has.
#pragma once

namespace mirelle {

// At least 1. Asked anew each time: whoever started the program can change it.
int CoresAtHand();

} // namespace mirelle
