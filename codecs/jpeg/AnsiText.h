// A text as bytes of the Windows-1252 code page.
#pragma once

#include <string>
#include <string_view>

namespace mirelle::jpeg {

// One byte for each character of a UTF-8 text, '?' for one that the code page lacks. A character beyond 16
// bits counts as two characters, as it does in every length that the system tells; a byte that is no UTF-8 as
// one.
std::string AnsiBytes(std::string_view text);

} // namespace mirelle::jpeg
