// The suffix of a material name: "_" and a number, behind the part of the name ahead of its first "_".
#pragma once

#include <string>

namespace mirelle {

class FrmPicX;

// The suffix that a new sample gets: the counter's next value (the counter and its text box step), or the
// seconds since midnight while names are not incremented.
std::string SuffixOfNewSample(FrmPicX& form);

// Puts the suffix in the place of everything from the name's first "_" on: Art_12 and "_13" give Art_13.
void TakeSuffix(FrmPicX& form, const std::string& suffix);

} // namespace mirelle
