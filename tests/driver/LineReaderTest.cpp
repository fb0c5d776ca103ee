#include "tests/driver/LineReader.h"

#include "tests/driver/Errors.h"
#include "tests/driver/References.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace mirelle::driver {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(WordsOfALine, ArePartedByBlanksAndTabs) {
    EXPECT_THAT(WordsOf("mouse down  Form\t1 100 50 "),
                ElementsAre("mouse", "down", "Form", "1", "100", "50"));
}

TEST(WordsOfALine, AreJsonWhereTheyBeginWithAQuote) {
    EXPECT_THAT(WordsOf(R"(set textProfileName.Text "wall + \"brick\"")"),
                ElementsAre("set", "textProfileName.Text", R"(wall + "brick")"));
    EXPECT_THAT(WordsOf(R"("get" "" "a\tb")"), ElementsAre("get", "", "a\tb"));
}

TEST(WordsOfALine, StandForThemselvesOtherwise) {
    EXPECT_THAT(WordsOf(R"(set X.Text C:\new\art"1")"), ElementsAre("set", "X.Text", R"(C:\new\art"1")"));
    EXPECT_THAT(WordsOf("a\xff\x01z"), ElementsAre("a\xff\x01z"));
    EXPECT_THAT(WordsOf(std::string_view("a\0b c", 5)), ElementsAre(std::string("a\0b", 3), "c"));
}

TEST(WordsOfALine, AreNoneInEmptyLinesAndRemarks) {
    EXPECT_THAT(WordsOf(""), IsEmpty());
    EXPECT_THAT(WordsOf(" \t "), IsEmpty());
    EXPECT_THAT(WordsOf("# set a \"b"), IsEmpty());
    EXPECT_THAT(WordsOf("click #1"), ElementsAre("click", "#1"));
}

TEST(WordsOfALine, NeedABlankBehindAJsonString) {
    EXPECT_THROW(WordsOf(R"(set "a"b)"), UsageError);
    EXPECT_THROW(WordsOf(R"("a""b")"), UsageError);
}

TEST(WordsOfALine, AreRefusedWhereTheLineIsTooLong) {
    EXPECT_EQ(WordsOf(std::string(kLongestLine, 'x')).size(), 1U);
    EXPECT_THROW(WordsOf(std::string(kLongestLine + 1, 'x')), UsageError);
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::istringstream input(text);
    std::vector<std::string> lines;
    while (const auto line = ReadLine(input))
        lines.push_back(*line);
    return lines;
}

TEST(Lines, EndInALineFeedOrWithTheInput) {
    EXPECT_THAT(LinesOf(""), IsEmpty());
    EXPECT_THAT(LinesOf("start\nquit"), ElementsAre("start", "quit"));
    EXPECT_THAT(LinesOf("start\r\n\r\n\nquit\r"), ElementsAre("start", "", "", "quit"));
}

TEST(Lines, KeepEveryOtherByte) {
    EXPECT_THAT(LinesOf(std::string("a\0\r\xff\nb", 6)), ElementsAre(std::string("a\0\r\xff", 4), "b"));
}

TEST(Lines, TakeNoMoreMemoryThanTheLongestMay) {
    const auto lines = LinesOf(std::string(kLongestLine + 1000, 'x') + "\nquit");
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].size(), kLongestLine + 1);
    EXPECT_EQ(lines[1], "quit");
}

TEST(NumbersInWords, AreReadWhole) {
    EXPECT_EQ(NumberIn("-1.25e2"), -125.0);
    EXPECT_EQ(WholeNumberIn("255", 0, 255), 255);
    for (const char* word : {"", " 1", "1 ", "1x", "one", "inf", "nan", "1e999", "0x10"})
        EXPECT_THROW(NumberIn(word), UsageError) << word;
    for (const char* word : {"", "1.5", "-1", "256", "99999999999", "1x"})
        EXPECT_THROW(WholeNumberIn(word, 0, 255), UsageError) << word;
}

TEST(Names, AreReadWithTheirIndex) {
    const PropertyReference row = PropertyReferenceIn("List2.List(3)");
    EXPECT_EQ(row.owner.name, "List2");
    EXPECT_EQ(row.owner.index, -1);
    EXPECT_EQ(row.property.name, "List");
    EXPECT_EQ(row.property.index, 3);
    EXPECT_EQ(PropertyReferenceIn("Label8(46).Caption").owner.index, 46);
}

TEST(Names, ThatAreNotWellFormedAreUsageErrors) {
    for (const char* name :
         {"Label8(46", "Label8()", "Label8(x)", "Label8(-1)", "Label8(99999999999)", "Label8(1)x"})
        EXPECT_THROW(ReferenceIn(name), UsageError) << name;
    EXPECT_THROW(PropertyReferenceIn("Command5"), UsageError);
}

} // namespace
} // namespace mirelle::driver
