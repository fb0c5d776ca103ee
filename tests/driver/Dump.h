// Pictures between the program and files of this machine, for arranging a test and for looking at its result.
#pragma once

#include "forms/Picture.h"

#include <string>

namespace mirelle::driver {

// Writes the picture's bytes, and nothing else: blue, green, red, fourth byte, rows from the top. Returns
// "[W, H]" as JSON; "null" for a picture without a pixel, and then no file is there. Throws CommandError
// where the file can't be written.
std::string DumpPicture(const Picture& picture, const std::string& path);

} // namespace mirelle::driver
