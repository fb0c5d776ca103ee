// Stems of file names of all kinds that a disk may hold.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace mirelle::test {

struct FileNameKind {
    const char* kind;
    std::string stem;
};

inline void PrintTo(const FileNameKind& row, std::ostream* out) {
    *out << row.kind;
}

inline const std::vector<FileNameKind> kFileNameKinds = {
    {"Blanks", "red  brick wall"},
    {"BlankInFront", " brick"},
    {"Quotes", "\"brick\" 'n' wall"},
    {"Ampersand", "brick & wall"},
    {"Percent", "100% brick %20"},
    {"Keystrokes", "{ENTER}+^~(brick)[1]"},
    {"Umlauts", "Ziegel_\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F"},
    {"Chinese", "\xE7\xA0\x96\xE5\xA2\x99"},
    {"BeyondTheBasicPlane", "\xF0\x9F\xA7\xB1"},
    {"CombiningMark", "e\xCC\x81t\xC3\xA9"},
    {"InvalidUtf8", "bri\xFF\xC3(ck\x80"},
    {"LongName", std::string(246, 'x')},
    {"ControlCharacter", "bri\tck\x01"},
    {"OnlyUnderscores", "___"},
    {"NumberAlone", "12"},
};

} // namespace mirelle::test
