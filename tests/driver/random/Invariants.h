// What is true of the program whatever its user does.
#pragma once

#include "app/FrmPicX.h"

#include <optional>
#include <string>

namespace mirelle::driver {

// The first thing that does not hold of the form after an event, nothing where all of it holds: values within
// their ranges, the counter not negative, and the form's picture the canvas's own where the event had to end
// with that.
std::optional<std::string> BrokenInvariant(FrmPicX& form, bool hasToShowCanvas);

} // namespace mirelle::driver
