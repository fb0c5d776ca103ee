// What lies in picture files, as ImageMagick and this machine's own encoder know it.
#pragma once

#include "tools/road/Desk.h"

#include <string>

namespace mirelle::test {

std::string BytesOf(const std::string& file);
// The usual ending for the kind of file that its bytes are: "png", "tif", "bmp", "gif", "jpg".
std::string FormatOf(const std::string& file);
// Red, green and blue of the whole picture or of a part of it, rows from the top.
std::string PixelsOf(const std::string& file);
std::string PixelsOf(const std::string& file, const road::Place& part);
// Of two such; 1000 for pictures of different sizes.
double MeanDifference(const std::string& first, const std::string& second);
// The JPEG file that the program's own encoder makes of a part of a picture here, as Fast Save has it done.
std::string EncodedHere(const std::string& file, const road::Place& part);

} // namespace mirelle::test
