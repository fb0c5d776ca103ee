#include "forms/LetterCase.h"
#include "forms/Text.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

struct Alphabet {
    const char* name;
    const char* capitals;
    const char* small;
};

constexpr Alphabet kAlphabets[] = {
    {"Latin", "ABCDEFGHIJKLMNOPQRSTUVWXYZ", "abcdefghijklmnopqrstuvwxyz"},
    {"Latin-1", "ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ", "àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ"},
    {"Extended-A", "ĀĂĄĆĈĊČĎĐĒĔĖĘĚĜĞĠĢĤĦĨĪĬĮĲĴĶĹĻĽĿŁŃŅŇŊŌŎŐŒŔŖŘŚŜŞŠŢŤŦŨŪŬŮŰŲŴŶŸŹŻŽ",
     "āăąćĉċčďđēĕėęěĝğġģĥħĩīĭįĳĵķĺļľŀłńņňŋōŏőœŕŗřśŝşšţťŧũūŭůűųŵŷÿźżž"},
    {"Romanian", "ĂÂÎȘȚ", "ăâîșț"},
    {"Greek", "ΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩΪΫΆΈΉΊΌΎΏ", "αβγδεζηθικλμνξοπρστυφχψωϊϋάέήίόύώ"},
    {"Russian", "АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ", "абвгдеёжзийклмнопрстуфхцчшщъыьэюя"},
    {"other Cyrillic", "ЂЃЄЅІЇЈЉЊЋЌЎЏҐҒҖҚҢҮҰҲҺӀӁӐӘӨӮ", "ђѓєѕіїјљњћќўџґғҗқңүұҳһӏӂӑәөӯ"},
    {"Vietnamese", "ẠẢẤẦẨẪẬẮẰẲẴẶẸẺẼẾỀỂỄỆỈỊỌỎỐỒỔỖỘỚỜỞỠỢỤỦỨỪỬỮỰỲỴỶỸ",
     "ạảấầẩẫậắằẳẵặẹẻẽếềểễệỉịọỏốồổỗộớờởỡợụủứừửữựỳỵỷỹ"},
};

TEST(LetterCase, MapsEveryAlphabetBothWays) {
    for (const Alphabet& alphabet : kAlphabets) {
        EXPECT_EQ(LowerCase(alphabet.capitals), alphabet.small) << alphabet.name;
        EXPECT_EQ(UpperCase(alphabet.small), alphabet.capitals) << alphabet.name;
        EXPECT_EQ(LowerCase(alphabet.small), alphabet.small) << alphabet.name;
        EXPECT_EQ(UpperCase(alphabet.capitals), alphabet.capitals) << alphabet.name;
    }
}

TEST(LetterCase, LeavesWhatHasNoPartner) {
    for (const char* text : {"0123456789_-.,;\\/:*?\"<>|[]{}@`^~", "×÷ßªºµ", "ıİĸŉſ", "ΐΰ", "漢字", "😀"}) {
        EXPECT_EQ(LowerCase(text), text);
        EXPECT_EQ(UpperCase(text), text);
    }
}

TEST(LetterCase, KnowsBothSmallSigmas) {
    EXPECT_EQ(UpperCase("σς"), "ΣΣ");
    EXPECT_EQ(LowerCase("ς"), "ς");
    EXPECT_EQ(LowerCase("Σ"), "σ");
}

TEST(LetterCase, PairsEachCapitalWithOneSmallLetter) {
    int pairs = 0;
    for (char32_t code = 0; code <= 0x1100FF; ++code) {
        const char32_t small = SmallLetter(code);
        const char32_t capital = CapitalLetter(code);
        ASSERT_EQ(SmallLetter(small), small);
        ASSERT_EQ(CapitalLetter(capital), capital);
        ASSERT_EQ(FoldedLetter(code), SmallLetter(capital)) << "letters fold alike that have one capital";
        ASSERT_TRUE(small == code || capital == code) << "a letter is a capital or a small one";
        if (small != code) {
            ASSERT_EQ(CapitalLetter(small), code);
            ++pairs;
        }
    }
    EXPECT_EQ(pairs, 349) << "the capitals of these blocks with one small letter, by the Unicode tables";
}

} // namespace
} // namespace mirelle
