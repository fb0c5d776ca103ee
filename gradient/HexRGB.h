// A colour as hexadecimal text.
#pragma once

#include <cstdint>
#include <string>

namespace mirelle {

// "&H", the hexadecimal digits of blue, green and red, and "&": HexRGB(255, 128, 0) is "&H0080FF&". Each has
// two digits at least; a number that needs more keeps them, and a negative one shows its 16 bits.
std::string HexRGB(std::int16_t red, std::int16_t green, std::int16_t blue);

} // namespace mirelle
