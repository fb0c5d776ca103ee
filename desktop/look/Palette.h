// The application's palette. A control whose own back colour the program sets takes it in these roles: a
// button, a spinner or a swatch in QPalette::Button, a text box, a combo box one can type in, a list or the
// square of a check box in QPalette::Base; the colour of its text is ButtonText or Text.
#pragma once

#include <QPalette>

namespace mirelle::look {

QPalette MakePalette();

} // namespace mirelle::look
