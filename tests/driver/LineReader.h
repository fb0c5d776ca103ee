// From the driver's input to the words of a command.
#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mirelle::driver {

// Longer lines are cut to one byte more than this, which no command takes.
constexpr std::size_t kLongestLine = std::size_t{16} << 20;

// The next line without its end ("\n", "\r\n" or the end of the input); nothing where there is none.
std::optional<std::string> ReadLine(std::istream& input);

// The words of a line, parted by blanks and tabs. A word that begins with a quote is a JSON string, and a
// blank or the line's end has to follow it; any other word stands for itself, byte by byte. Empty lines,
// blank ones and those whose first word begins with "#" have no words. Throws UsageError.
std::vector<std::string> WordsOf(std::string_view line);

// Words that name a number. Throw UsageError for anything else: blanks, what follows the number, what is not
// finite or not in the range.
double NumberIn(const std::string& word);
int WholeNumberIn(const std::string& word, int least, int greatest);

} // namespace mirelle::driver
