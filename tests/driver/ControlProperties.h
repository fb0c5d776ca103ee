// The properties of controls, as a table.
#pragma once

#include "forms/Control.h"
#include "tests/driver/PropertyTable.h"

#include <vector>

namespace mirelle::driver {

const std::vector<PropertyRow<Control>>& ControlProperties();

} // namespace mirelle::driver
