// Pictures for arranging tests, from files of this machine.
#pragma once

#include "forms/Picture.h"

#include <string>

namespace mirelle {

// A PNG or BMP file, told by its content. An alpha channel becomes the fourth byte; it is 0 for pictures
// without one. Raises 53, 75 or 76 where the file can't be read, 481 where it is neither, 7 where it is too
// large.
Picture ReadTestPicture(const std::string& path);

} // namespace mirelle
