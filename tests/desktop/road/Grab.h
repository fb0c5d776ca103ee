// A picture to grab, no two rows and no two columns of it alike.
#pragma once

#include <string>

namespace mirelle::test {

// Writes it as a PNG file, 1000 by 700 pixels.
void MakeGrab(const std::string& file);

} // namespace mirelle::test
