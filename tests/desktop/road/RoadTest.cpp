// The whole road in the real program: from a grab to materials and a painted face in a real Ruby interpreter
// behind a window titled "Ruby Console", by a real pointer and real key strokes.
#include "tests/desktop/x11/X11Desktop.h"

#include "tests/desktop/road/Grab.h"
#include "tests/desktop/road/Walk.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/road/Road.h"

#include <filesystem>

namespace mirelle::test {
namespace {

using road::Console;
using road::OwnProgram;
using road::Road;
using road::RubyConsole;

class RoadTest : public X11Desktop {
protected:
    RoadTest() {
        std::filesystem::copy(MIRELLE_SUPPORT, home_ + "/Support", std::filesystem::copy_options::recursive);
    }

    std::string Home() const { return home_; }
    std::string Grab() const {
        const std::string file = folder_ / "grab.png";
        MakeGrab(file);
        return file;
    }

    TemporaryFolder folder_;
    // Characters that no layout here has all of.
    std::string home_ = folder_.MakeFolder("Häuser, à côté [2]");
};

struct RoadRow {
    const char* name;
    const char* layout;
    unsigned locks = 0;
    bool everyForm = false; // of a file
};

void PrintTo(const RoadRow& row, std::ostream* out) {
    *out << row.name;
}

class WholeRoad : public RoadTest, public testing::WithParamInterface<RoadRow> {};

TEST_P(WholeRoad, LeavesWhatWasSentInTheModelLineByLine) {
    UseLayout(GetParam().layout);
    LockModifiers(GetParam().locks);
    const std::vector<KeySym> keyboard = KeyboardMapping();
    const Console console(folder_.Path(), RubyConsole("Ruby Console", kUnderTheWindow));
    ConsoleProcess cover("Cover");
    Road road(OwnProgram(MIRELLE_PROGRAM, Home()));
    Walk walk(road, console);
    WalkOrTell(road, [&] {
        walk.Crop(Grab());
        if (GetParam().everyForm) walk.SaveInEveryForm(Grab());
        walk.SaveAndSend();
        walk.SendFolderAndList();
        walk.SendColour();
    });

    EXPECT_EQ(console.Ask("Typed.lines"), walk.Lines());
    EXPECT_EQ(console.Ask("Typed.errors"), "[]");
    EXPECT_EQ(cover.TakeRecord(), "");
    EXPECT_EQ(LockedModifiers(), GetParam().locks);
    EXPECT_EQ(HeldModifiers(), 0U);
    EXPECT_EQ(KeyboardMapping(), keyboard);
}

constexpr unsigned kCapsAndNum = LockMask | Mod2Mask;

INSTANTIATE_TEST_SUITE_P(Layouts, WholeRoad,
                         testing::Values(RoadRow{"American", "us", 0, true},
                                         RoadRow{"AmericanWithLocksOn", "us", kCapsAndNum},
                                         RoadRow{"GermanWithLocksOn", "de", kCapsAndNum},
                                         RoadRow{"FrenchWithLocksOn", "fr", kCapsAndNum}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(RoadTest, WithoutAConsoleMaterialSendsShowTheirMessageAndTypeNothing) {
    ConsoleProcess other("Other");
    Road road(OwnProgram(MIRELLE_PROGRAM, Home()));
    road.Select({"Art", "Art_2.jpg"});
    const std::string missing = "Make sure the Ruby Console is visible";
    road.SendMaterial();
    road.AwaitMessage(missing);
    road.ToggleSuperBatch();
    road.SendFolder();
    road.AwaitMessage(missing);
    road.Check("Single");
    road.LineUp({"Bio", "Bio_1.jpg"});
    road.SendList();
    road.AwaitMessage(missing);
    EXPECT_EQ(road.Name(), "Bio_1");
    road.ToggleSuperBatch();
    road.Press("Attach new texture to entered SketchUp material name in quotes");
    road.Press("Change entered material name texture in SketchUp to current selected image; Sends SU "
               "supported images");
    road.AwaitMessage(missing);
    EXPECT_EQ(road.Name(), R"("")");
    EXPECT_EQ(other.TakeRecord(), "");
}

} // namespace
} // namespace mirelle::test
