#include "bridge/WindowTitle.h"

#include <gtest/gtest.h>

#include <vector>

namespace mirelle {
namespace {

std::optional<std::size_t> Find(const std::vector<std::string>& titles, std::string_view wanted) {
    return FindTitle(titles, wanted);
}

TEST(WindowTitle, TheExactTitleComesBeforeAllOthers) {
    EXPECT_EQ(Find({"Ruby Console 2", "The Ruby Console", "Ruby Console"}, "Ruby Console"), 2U);
}

TEST(WindowTitle, ABeginningComesBeforeAnEnd) {
    EXPECT_EQ(Find({"The Ruby Console", "Ruby Console 2"}, "Ruby Console"), 1U);
    EXPECT_EQ(Find({"Other", "The Ruby Console"}, "Ruby Console"), 1U);
}

TEST(WindowTitle, TheMiddleOfATitleIsNoMatch) {
    EXPECT_EQ(Find({"The Ruby Console here"}, "Ruby Console"), std::nullopt);
}

TEST(WindowTitle, TheFirstOfEqualsIsTaken) {
    EXPECT_EQ(Find({"x", "Ruby Console", "Ruby Console"}, "Ruby Console"), 1U);
}

TEST(WindowTitle, CaseDoesNotCount) {
    EXPECT_EQ(Find({"Ruby Console 2", "RUBY console"}, "ruby CONSOLE"), 1U);
    EXPECT_EQ(Find({"ÉCOLE"}, "école"), 0U);
}

TEST(WindowTitle, NothingWantedFindsNothing) {
    EXPECT_EQ(Find({"", "Ruby Console"}, ""), std::nullopt);
    EXPECT_EQ(Find({}, "Ruby Console"), std::nullopt);
}

} // namespace
} // namespace mirelle
