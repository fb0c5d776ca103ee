// Texts as the forms runtime handles them. A text is UTF-8; lengths and positions count characters (UTF-16
// units, so that a length told to a user or compared with a limit is the one that a Windows program counts).
// A byte that is not well-formed UTF-8 counts as one character and comes through every function unchanged.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mirelle {

int Len(std::string_view text);
// At most `count` characters from either end; one that takes two units is left out rather than cut in two.
// Error 5 on a negative count.
std::string Left(std::string_view text, int count);
std::string Right(std::string_view text, int count);
// Blanks (code 32 and no others) cut off at both ends.
std::string Trim(std::string_view text);
// The pieces between the separators; the empty text gives no piece at all, an empty separator parts nothing.
std::vector<std::string> Split(std::string_view text, std::string_view separator);
// Every occurrence of `what`, from the left, replaced. An empty `what` changes nothing.
std::string Replace(std::string_view text, std::string_view what, std::string_view with);
std::string LowerCase(std::string_view text); // ASCII and the letters of the common alphabets
std::string UpperCase(std::string_view text);
bool Contains(std::string_view text, std::string_view what);
// The part ahead of the first `mark`, the whole text where there is none.
std::string Before(std::string_view text, std::string_view mark);
// Without regard to case: negative, 0 or positive as a sorts before, with or after b, by the codes of the
// small letters. The same in every locale.
int CompareNoCase(std::string_view a, std::string_view b);

} // namespace mirelle
