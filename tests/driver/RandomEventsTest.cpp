// Random events: whatever a user does, in whatever order, no handler lets an error out, no answer breaks the
// exchange, and the program is there at the end (over files in memory; random_events runs longer ones over
// real files). Set MIRELLE_RANDOM_SESSIONS to run more sessions than usual.
#include "tests/driver/RandomUser.h"
#include "tests/driver/TestConversation.h"
#include "tests/support/Patterns.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace mirelle::driver {
namespace {

constexpr int kUsualSessions = 30;
constexpr int kCommands = 150;

int SessionCount() {
    const char* wanted = std::getenv("MIRELLE_RANDOM_SESSIONS");
    return wanted ? std::atoi(wanted) : kUsualSessions;
}

void LayDownPictures(TestConversation& say) {
    say.pictures["dot.png"] = test::ChartPicture(1, 1, 1);
    say.pictures["grab.png"] = test::ChartPicture(61, 43, 2);
    say.pictures["strip.png"] = test::ChartPicture(130, 3, 3);
    constexpr std::string_view kMaterials = "C:\\Mirelle\\Support\\Materials\\";
    int mark = 0;
    for (const std::string_view name :
         {"Art_3.jpg", "Art_12.jpg", "brick.old.jpg", "Metal_25000.jpg", "noend", "shot.bmp", "scan.tif",
          "Art\\Art_1.jpg", "Art\\Art_1E999.jpg", "Bio\\odd_&HFFFFFFFFF.jpg", "Misc\\empty_4b.gif"}) {
        const std::string path = std::string(kMaterials) + std::string(name);
        say.files.AddFile(path);
        // Some are pictures and some are not.
        say.loader.pictures[path] =
            ++mark % 4 == 0 ? Picture() : test::ChartPicture(10 + 7 * mark, 40 - mark);
    }
    say.files.AddFolder("D:\\");
    say.files.AddFile("C:\\Mirelle\\Support\\Settings\\MaterialsSamplerPrefix.txt", "Own_\r\n\r\nOther_");
    say.session.desktop.screen.size = {400, 300}; // a small one, so that pictures of the form are small
}

class RandomEvents : public testing::TestWithParam<int> {};

TEST_P(RandomEvents, AreAllTaken) {
    TestConversation say;
    LayDownPictures(say);
    ASSERT_EQ(say("start"), "ok");
    ASSERT_EQ(say("window normal 320 200"), "ok");
    RandomUser user(static_cast<unsigned>(GetParam()),
                    {{"dot.png", "grab.png", "strip.png"},
                     {"C:\\", "D:\\", "C:\\Mirelle\\Support\\Materials",
                      "C:\\Mirelle\\Support\\Materials\\Art", "C:\\Mirelle\\Support\\Materials\\Bio"}});
    std::string script;
    for (int i = 0; i < kCommands; ++i) {
        const std::string command = user.Next(say.Form());
        script += command + "\n";
        // A smudger works for long: the user gives up after a few passes.
        if (command.find("cmdPointalism") != std::string::npos) say("during pass 4 key esc");
        const std::string answer = say(command);
        ASSERT_TRUE(answer.starts_with("ok")) << answer << "\n" << script;
    }
    EXPECT_FALSE(say.conversation.Ended());
    EXPECT_TRUE(say("messages").starts_with("ok ["));
    EXPECT_TRUE(say("sent").starts_with("ok ["));
    EXPECT_TRUE(say("get Form.Caption").starts_with("ok \""));
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEvents, testing::Range(0, SessionCount()));

} // namespace
} // namespace mirelle::driver
