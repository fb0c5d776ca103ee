// A picture to grab, no two rows and no two columns of it alike.
#pragma once

#include <string>

namespace mirelle::test {

// Writes it as a PNG or BMP file, by its name, 1000 by 700 pixels.
void MakeGrab(const std::string& file);

} // namespace mirelle::test
