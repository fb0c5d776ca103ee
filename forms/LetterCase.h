// Capital and small letters of Latin (ASCII, Latin-1, Extended-A, the comma letters of Romanian and the
// letters of Vietnamese), Greek and Cyrillic. One letter answers to one letter: no mapping changes a length
// in characters, and letters without such a partner (the sharp s, the dotless i) stay as they are. The same
// in every locale.
#pragma once

namespace mirelle {

char32_t SmallLetter(char32_t code);
char32_t CapitalLetter(char32_t code);
// The small letter, both small sigmas as one: what a comparison without regard to case compares.
char32_t FoldedLetter(char32_t code);

} // namespace mirelle
