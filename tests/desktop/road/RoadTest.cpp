// The whole road in the real program: from a grab to materials and a painted face in a real Ruby interpreter
// behind a window titled "Ruby Console", by a real pointer and real key strokes.
#include "tests/desktop/x11/X11Desktop.h"

#include "tests/desktop/road/Grab.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/road/Road.h"

#include <filesystem>

namespace mirelle::test {
namespace {

using road::Console;
using road::LibraryFile;
using road::Place;
using road::Road;

// The window lies above all others from its start, over the whole of the small screen.
constexpr Place kUnderTheWindow{60, 60, 500, 300};
constexpr const char* kMaterials =
    "Sketchup.active_model.materials.map { |m| [m.name, m.texture&.filename, m.texture&.size] }";
constexpr const char* kFaces =
    "Sketchup.active_model.entities.map { |f| [f.points, f.material&.to_a, f.back_material&.to_a] }";

std::string Quoted(const std::string& text) {
    return '"' + text + '"';
}

// The interpreter's answer where it has these lines, or texts of any kind.
std::string ListOf(const std::vector<std::string>& items) {
    std::string list;
    for (const std::string& item : items)
        list += (list.empty() ? "" : ",") + item;
    return '[' + list + ']';
}

// The lines that put a sized material into SketchUp, as Ruby texts in JSON.
std::vector<std::string> MaterialLines(const std::string& name, const std::string& path) {
    return {R"("model = Sketchup::active_model")",
            R"("model.entities.count")",
            R"("materials = model.materials")",
            R"("material = materials.add \")" + name + R"(\"")",
            R"("material.texture = \")" + path + R"(\"")",
            R"("material.texture.size=5")"};
}

std::vector<std::string> ColourLines(const std::string& colour) {
    return {R"("model = Sketchup::active_model")",
            R"("model.entities.count")",
            R"("pt1 = [1,1,0]")",
            R"("pt2 = [2,1,0]")",
            R"("pt3 = [2,2,0]")",
            R"("pt4 = [1,2,0]")",
            R"("entities = model.entities")",
            R"("new_face = entities.add_face pt1, pt2, pt3, pt4")",
            R"("new_face.material = Sketchup::Color.new )" + colour + '"',
            R"("new_face.back_material = )" + colour + '"'};
}

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
};

void PrintTo(const RoadRow& row, std::ostream* out) {
    *out << row.name;
}

class WholeRoad : public RoadTest, public testing::WithParamInterface<RoadRow> {};

// A picture of the screen where a walk got stuck.
void Walk(Road& road, const std::function<void()>& steps) {
    try {
        steps();
    } catch (const std::exception& error) {
        const std::string picture = testing::TempDir() + "mirelle-road-stuck.png";
        road.TheDesk().TakePicture(picture);
        ADD_FAILURE() << error.what() << ": see " << picture;
    }
}

TEST_P(WholeRoad, LeavesWhatWasSentInTheModelLineByLine) {
    UseLayout(GetParam().layout);
    LockModifiers(GetParam().locks);
    const std::vector<KeySym> keyboard = KeyboardMapping();
    const Console console("Ruby Console", folder_.Path(), kUnderTheWindow);
    ConsoleProcess cover("Cover");
    Road road(MIRELLE_PROGRAM, Home());
    std::vector<std::string> materials;
    std::vector<std::string> lines;
    const auto sent = [&](const LibraryFile& file) {
        const std::string name = file.file.substr(0, file.file.size() - 4);
        materials.push_back("[" + Quoted(name) + "," + Quoted(road.PathOf(file)) + ",5]");
        const std::vector<std::string> more = MaterialLines(name, road.PathOf(file));
        lines.insert(lines.end(), more.begin(), more.end());
    };

    Walk(road, [&] {
        road.Check("Count"); // goes on behind the folder's highest number
        road.Select({"Art", "Art_2.jpg"});
        road.Paste(Grab());
        ASSERT_EQ(road.Drag({60, 80, 180, 120}), "Art_3");
        const LibraryFile saved{"Art", "Art_3.jpg"};
        road.FastSave(saved);
        road.Select(saved);
        road.Check("Sz");
        road.SendMaterial();
        sent(saved);
        console.AwaitAnswer(kMaterials, ListOf(materials));

        road.ToggleSuperBatch();
        road.EnterFolder("Metal");
        road.SendFolder();
        sent({"Metal", "Metal_1.jpg"});
        sent({"Metal", "Metal_2.jpg"});
        console.AwaitAnswer(kMaterials, ListOf(materials));

        road.Check("Single");
        road.LineUp({"Bio", "Bio_1.jpg"});
        road.LineUp({"Fractal", "Fractal_2.jpg"});
        road.SendList();
        sent({"Bio", "Bio_1.jpg"});
        sent({"Fractal", "Fractal_2.jpg"});
        console.AwaitAnswer(kMaterials, ListOf(materials));
        road.Window().Await("label", "Sent: 2");

        road.ToggleSuperBatch();
        const std::string colour = road.SampleColour();
        road.SendColour();
        console.AwaitAnswer(kFaces,
                            "[[[[1,1,0],[2,1,0],[2,2,0],[1,2,0]],[" + colour + "],[" + colour + "]]]");
        const std::vector<std::string> last = ColourLines(colour);
        lines.insert(lines.end(), last.begin(), last.end());
    });

    EXPECT_EQ(console.Ask("Typed.lines"), ListOf(lines));
    EXPECT_EQ(console.Ask("Typed.errors"), "[]");
    EXPECT_EQ(cover.TakeRecord(), "");
    EXPECT_EQ(LockedModifiers(), GetParam().locks);
    EXPECT_EQ(HeldModifiers(), 0U);
    EXPECT_EQ(KeyboardMapping(), keyboard);
}

constexpr unsigned kCapsAndNum = LockMask | Mod2Mask;

INSTANTIATE_TEST_SUITE_P(Layouts, WholeRoad,
                         testing::Values(RoadRow{"American", "us"},
                                         RoadRow{"AmericanWithLocksOn", "us", kCapsAndNum},
                                         RoadRow{"GermanWithLocksOn", "de", kCapsAndNum},
                                         RoadRow{"FrenchWithLocksOn", "fr", kCapsAndNum}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(RoadTest, WithoutAConsoleMaterialSendsShowTheirMessageAndTypeNothing) {
    ConsoleProcess other("Other");
    Road road(MIRELLE_PROGRAM, Home());
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
