#include "bridge/RubyConsoleLink.h"

#include "tests/bridge/SentTexts.h"
#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

const LineFields kFields{
    .name = "wall + brick", .path = "C:\\\\Mat\\\\a.jpg", .size = "39.37", .rgb = "255,128,0"};

struct LineRow {
    const char* name;
    Line line;
    const char* text;
};

class LineFormTest : public ::testing::TestWithParam<LineRow> {};

TEST_P(LineFormTest, IsTypedToTheByte) {
    EXPECT_EQ(TextOf(GetParam().line, kFields), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, LineFormTest,
    ::testing::Values(LineRow{"P1", Line::P1, "model = Sketchup::active_model\r"},
                      LineRow{"P2", Line::P2, "model.entities.count\r"},
                      LineRow{"P3", Line::P3, "materials = model.materials\r"},
                      LineRow{"M1", Line::M1, "material = materials.add \"wall + brick\"\r"},
                      LineRow{"M1Bare", Line::M1b, "material = materials.add wall + brick\r"},
                      LineRow{"M1c", Line::M1c, "material = Sketchup.active_model.materials[wall + brick]\r"},
                      LineRow{"M2", Line::M2, "material.texture = \"C:\\\\Mat\\\\a.jpg\"\r"},
                      LineRow{"M3", Line::M3, "material.texture.size=39.37\r"},
                      LineRow{"F1", Line::F1, "pt1 = [1,1,0]\r"}, LineRow{"F2", Line::F2, "pt2 = [2,1,0]\r"},
                      LineRow{"F3", Line::F3, "pt3 = [2,2,0]\r"}, LineRow{"F4", Line::F4, "pt4 = [1,2,0]\r"},
                      LineRow{"F5", Line::F5, "entities = model.entities\r"},
                      LineRow{"F6", Line::F6, "new_face = entities.add_face pt1, pt2, pt3, pt4\r"},
                      LineRow{"C1", Line::C1, "new_face.material = Sketchup::Color.new 255,128,0\r"},
                      LineRow{"C2", Line::C2, "new_face.back_material = 255,128,0\r"}),
    [](const auto& row) { return row.param.name; });

TEST(LineForms, AnEmptyColourLeavesTheBlankBehindWhichItWouldStand) {
    EXPECT_EQ(TextOf(Line::C1, {}), "new_face.material = Sketchup::Color.new \r");
    EXPECT_EQ(TextOf(Line::C2, {}), "new_face.back_material = \r");
}

TEST(EscapedPath, DoublesEveryBackslash) {
    EXPECT_EQ(EscapedPath("C:\\Mat\\a.jpg"), "C:\\\\Mat\\\\a.jpg");
    EXPECT_EQ(EscapedPath("\\\\server\\share\\a.jpg"), "\\\\\\\\server\\\\share\\\\a.jpg");
    EXPECT_EQ(EscapedPath("C:\\Mats (old)\\a+b%.jpg"), "C:\\\\Mats (old)\\\\a+b%.jpg");
    EXPECT_EQ(EscapedPath("/home/u/a.jpg"), "/home/u/a.jpg");
    EXPECT_EQ(EscapedPath(""), "");
}

TEST(RubyConsoleLinkTest, TypesTheLinesOfACallAtOnce) {
    ScriptedConsole console;
    RubyConsoleLink link(console);
    link.Activate();
    link.CreateShell();
    link.Send({Line::P1, Line::P2, Line::P3});
    EXPECT_EQ(TakeSent(console),
              (std::vector<std::string>{"AppActivate Ruby Console", "CreateObject WScript.Shell",
                                        "SendKeys " + kPreambleText}));
}

TEST(RubyConsoleLinkTest, RaisesFiveWithoutAConsoleAndNinetyOneWithoutAShell) {
    ScriptedConsole console;
    console.present = false;
    RubyConsoleLink link(console);
    EXPECT_EQ(ErrorOf([&] { link.Activate(); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(ErrorOf([&] { link.Send({Line::P1}); }), ErrorNumber::ObjectNotSet);
}

} // namespace
} // namespace mirelle::test
