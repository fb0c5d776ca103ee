#include "library/LineInput.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace mirelle {
namespace {

std::vector<std::string> LinesOf(std::string_view text) {
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    LineInput input(bytes);
    std::vector<std::string> lines;
    while (!input.AtEnd())
        lines.push_back(input.ReadLine());
    return lines;
}

using Lines = std::vector<std::string>;

TEST(LineInput, PartsLinesAtTheEndsOfEverySystem) {
    EXPECT_EQ(LinesOf("a\r\nb\nc\rd"), (Lines{"a", "b", "c", "d"}));
}

TEST(LineInput, LineEndBehindTheLastLineAddsNoLine) {
    EXPECT_EQ(LinesOf("a\r\n"), (Lines{"a"}));
    EXPECT_EQ(LinesOf("a\n"), (Lines{"a"}));
    EXPECT_EQ(LinesOf("a"), (Lines{"a"}));
}

TEST(LineInput, BlankLinesAreLines) {
    EXPECT_EQ(LinesOf("\r\n\r\na\n\n"), (Lines{"", "", "a", ""}));
    EXPECT_EQ(LinesOf("\r\r"), (Lines{"", ""}));
}

TEST(LineInput, EmptyTextHasNoLines) {
    EXPECT_TRUE(LinesOf("").empty());
    EXPECT_TRUE(LinesOf("\xEF\xBB\xBF").empty());
}

TEST(LineInput, ByteOrderMarkIsNotPartOfTheFirstLine) {
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF"
                      "Art_\n\xEF\xBB\xBFMetal_"),
              (Lines{"Art_", "\xEF\xBB\xBFMetal_"}));
}

TEST(LineInput, KeepsEveryOtherByte) {
    using namespace std::string_view_literals;
    EXPECT_EQ(LinesOf(" a \t\n\0b\n\xFF\xFE\n"sv), (Lines{" a \t", std::string("\0b", 2), "\xFF\xFE"}));
}

TEST(LineInput, ReadingBehindTheEndGivesEmptyLines) {
    LineInput input(std::vector<std::uint8_t>{'a'});
    EXPECT_EQ(input.ReadLine(), "a");
    EXPECT_EQ(input.ReadLine(), "");
    EXPECT_EQ(input.ReadLine(), "");
    EXPECT_TRUE(input.AtEnd());
}

} // namespace
} // namespace mirelle
