// The properties of forms, and the values that the main form's handlers share, as tables.
#pragma once

#include "app/FrmPicX.h"
#include "tests/driver/PropertyTable.h"

#include <vector>

namespace mirelle::driver {

// Of any form; and those that only the main form has.
const std::vector<PropertyRow<Form>>& FormProperties();

} // namespace mirelle::driver
