#include "tests/driver/Scenario.h"

#include "tests/driver/Errors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle::driver {
namespace {

using testing::ElementsAre;

TEST(ScenarioFile, HasItsAnswersBesideItsCommands) {
    const Scenario scenario =
        ReadScenario("# remark\n\nstart\n  get Form.Caption   =>  ok \"a => b\" \n", "/t");
    ASSERT_EQ(scenario.steps.size(), 2U);
    EXPECT_EQ(scenario.steps[0].line, 3);
    EXPECT_EQ(scenario.steps[0].command, "start");
    EXPECT_EQ(scenario.steps[0].answer, "ok");
    EXPECT_EQ(scenario.steps[1].command, "get Form.Caption");
    EXPECT_EQ(scenario.steps[1].answer, "ok \"a => b\"");
}

TEST(ScenarioFile, NamesItsFolderByASign) {
    const Scenario scenario =
        ReadScenario("dump PicImage.Image @/a@/b => ok \"@/c\"\nset Text2x(1).Text me@home", "/tmp/1");
    EXPECT_EQ(scenario.steps[0].command, "dump PicImage.Image /tmp/1/a@/b");
    EXPECT_EQ(scenario.steps[0].answer, "ok \"/tmp/1/c\"");
    EXPECT_EQ(scenario.steps[1].command, "set Text2x(1).Text me@home");
}

TEST(ScenarioFile, HasDirectivesOfSeveralWords) {
    const Scenario scenario = ReadScenario("!picture a.png 4 3 7\r\n!file b \"x\\r\\ny\"\nstart", "/t");
    ASSERT_EQ(scenario.directives.size(), 2U);
    EXPECT_THAT(scenario.directives[0].words, ElementsAre("picture", "a.png", "4", "3", "7"));
    EXPECT_THAT(scenario.directives[1].words, ElementsAre("file", "b", "x\r\ny"));
    EXPECT_EQ(scenario.directives[1].line, 2);
    EXPECT_THROW(ReadScenario("!file b \"x", "/t"), UsageError);
}

TEST(ScenarioFile, AsksForAnAnswerOrForItsBeginning) {
    const Step exact{1, "start", "ok"};
    EXPECT_TRUE(IsExpected(exact, "ok"));
    EXPECT_FALSE(IsExpected(exact, "ok 1"));
    const Step open{1, "start", "error usage ..."};
    EXPECT_TRUE(IsExpected(open, "error usage there is none"));
    EXPECT_FALSE(IsExpected(open, "error run-time 5"));
}

} // namespace
} // namespace mirelle::driver
