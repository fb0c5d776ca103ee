#include "forms/LetterCase.h"

#include <array>

namespace mirelle {
namespace {

// The capitals from `first` to `last`, every `step`-th of them; the small letter lies `toSmall` further on.
// Ordered by `first`. From the simple case mappings of the Unicode Character Database (UnicodeData.txt,
// fields 12 and 13).
struct Range {
    char32_t first;
    char32_t last;
    char32_t step;
    int toSmall;
};

constexpr std::array kRanges = {
    Range{0x0041, 0x005A, 1, 32},   // A..Z
    Range{0x00C0, 0x00D6, 1, 32},   // Latin-1 up to the multiplication sign
    Range{0x00D8, 0x00DE, 1, 32},   // Latin-1 behind it
    Range{0x0100, 0x012E, 2, 1},    // Latin Extended-A, up to the dotted and dotless i
    Range{0x0132, 0x0136, 2, 1},    //
    Range{0x0139, 0x0147, 2, 1},    // capitals on odd places from here
    Range{0x014A, 0x0176, 2, 1},    //
    Range{0x0178, 0x0178, 1, -121}, // Y with diaeresis, whose small letter is in Latin-1
    Range{0x0179, 0x017D, 2, 1},    //
    Range{0x0218, 0x021A, 2, 1},    // S and T with comma below
    Range{0x0386, 0x0386, 1, 38},   // Greek letters with tonos
    Range{0x0388, 0x038A, 1, 37},   //
    Range{0x038C, 0x038C, 1, 64},   //
    Range{0x038E, 0x038F, 1, 63},   //
    Range{0x0391, 0x03A1, 1, 32},   // Alpha..Rho
    Range{0x03A3, 0x03AB, 1, 32},   // Sigma and on; 03A2 is unused, as its place below is the final sigma's
    Range{0x0400, 0x040F, 1, 80},   // Cyrillic beside the Russian alphabet
    Range{0x0410, 0x042F, 1, 32},   // the Russian alphabet
    Range{0x0460, 0x0480, 2, 1},    // historic Cyrillic
    Range{0x048A, 0x04BE, 2, 1},    // Cyrillic of other languages
    Range{0x04C0, 0x04C0, 1, 15},   // palochka
    Range{0x04C1, 0x04CD, 2, 1},    //
    Range{0x04D0, 0x052E, 2, 1},    //
    Range{0x1EA0, 0x1EFE, 2, 1},    // Vietnamese
};

constexpr char32_t kCapitalSigma = 0x03A3;
constexpr char32_t kFinalSigma = 0x03C2;
constexpr char32_t kSmallSigma = 0x03C3;

constexpr char32_t Moved(char32_t code, int by) {
    return static_cast<char32_t>(static_cast<int>(code) + by);
}

constexpr bool Holds(const Range& range, char32_t capital) {
    return capital >= range.first && capital <= range.last && (capital - range.first) % range.step == 0;
}

} // namespace

char32_t SmallLetter(char32_t code) {
    for (const Range& range : kRanges) {
        if (code < range.first) break;
        if (Holds(range, code)) return Moved(code, range.toSmall);
    }
    return code;
}

char32_t CapitalLetter(char32_t code) {
    if (code == kFinalSigma) return kCapitalSigma;
    for (const Range& range : kRanges) {
        const char32_t capital = Moved(code, -range.toSmall);
        if (Holds(range, capital)) return capital;
    }
    return code;
}

char32_t FoldedLetter(char32_t code) {
    return code == kFinalSigma ? kSmallSigma : SmallLetter(code);
}

} // namespace mirelle
