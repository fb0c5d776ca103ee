// Which events end with the form showing the canvas's own picture.
#pragma once

#include "app/FrmPicX.h"
#include "tests/support/ScriptedDesktop.h"

#include <string>

namespace mirelle::driver {

// Asked ahead of an event, of the program as it is then: whether the event has to end with the form's picture
// being that of the canvas. Events that end so only where memory holds a very large picture are not counted.
bool HasToShowCanvas(FrmPicX& form, const test::ScriptedDesktop& desktop, const std::string& event);

} // namespace mirelle::driver
