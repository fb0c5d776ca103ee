// The number that a material file carries behind the last "_" of its name, and how a count of files is told.
#pragma once

#include <string>
#include <string_view>

namespace mirelle {

// The leading number of the last piece of the name, parted at "_": Art_0012.jpg gives 12, wood.jpg gives 0.
double NumberOfFileName(std::string_view fileName);

// "2 Files", "1 File", "0 Files".
std::string CountText(int count);

} // namespace mirelle
