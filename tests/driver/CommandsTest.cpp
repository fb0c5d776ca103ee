// The table of commands as a whole.
#include "tests/driver/Commands.h"

#include "tests/driver/Errors.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>

namespace mirelle::driver {
namespace {

TEST(CommandTable, NamesEachCommandOnce) {
    std::set<std::string> names;
    for (const Command& command : AllCommands())
        EXPECT_TRUE(names.insert(command.name).second) << command.name;
}

TEST(CommandTable, IsToldWholeInTheDocument) {
    std::ifstream file(MIRELLE_DRIVER_README);
    const std::string document{std::istreambuf_iterator<char>(file), {}};
    ASSERT_FALSE(document.empty());
    for (const Command& command : AllCommands()) {
        const std::string name = std::string("| `") + command.name;
        const bool told =
            document.find(name + " ") != std::string::npos || document.find(name + "`") != std::string::npos;
        EXPECT_TRUE(told) << command.name;
    }
}

TEST(CommandTable, CountsTheWordsOfACommand) {
    const std::vector<std::string> tooFew = {"set", "Text2x(0).Text"};
    const std::vector<std::string> right = {"set", "Text2x(0).Text", "a"};
    const std::vector<std::string> tooMany = {"set", "Text2x(0).Text", "a", "b"};
    EXPECT_THROW(CommandOf(tooFew), UsageError);
    EXPECT_EQ(std::string(CommandOf(right).name), "set");
    EXPECT_THROW(CommandOf(tooMany), UsageError);
}

} // namespace
} // namespace mirelle::driver
