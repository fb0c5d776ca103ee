// Which form of the effects the program runs.
//
// The fast form gives the bytes of the plain one, so this changes nothing but the time. With the environment
// variable MIRELLE_PLAIN_FX set to anything but 0 the plain form runs: for looking into a fault, and for
// tests.
#pragma once

namespace mirelle {

enum class FXForm { Plain, Fast };

// Asked once a run of the program.
FXForm ChosenFXForm();

} // namespace mirelle
