#include "desktop/look/Tokens.h"

#include <algorithm>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "desktop/look/Contrast.h"

namespace mirelle::look {
namespace {

struct Pair {
    std::string_view name;
    QRgb ink;
    QRgb ground;
};

void PrintTo(const Pair& pair, std::ostream* out) {
    *out << pair.name;
}

std::string TestName(const testing::TestParamInfo<Pair>& row) {
    std::string name(row.param.name);
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == ' ' || c == '-'; }, '_');
    return name;
}

// Every pair of ink and ground that the painters bring together.
constexpr Pair kTextPairs[] = {
    {"text on the canvas", kText, kCanvas},
    {"text on a card", kText, kCard},
    {"text on a control", kText, kControl},
    {"text on a hovered control", kTextStrong, Hovered(kControl)},
    {"text on a pressed control", kText, Pressed(kControl)},
    {"text in a field", kText, kField},
    {"quiet text on a card", kTextQuiet, kCard},
    {"quiet text in a field", kTextQuiet, kField},
    {"quiet text on a control", kTextQuiet, kControl},
    {"selected text", kTextStrong, kSelection},
    {"selected text without the focus", kText, kSelectionIdle},
    {"text of the default button", kTextStrong, Hovered(kSelection)},
    {"a switched-on button", kAccentText, Switched(kControl)},
    {"accent text on a card", kAccentText, kCard},
    {"a warning on a card", kWarning, kCard},
    {"a warning in a field", kWarning, kField},
};

constexpr Pair kShapePairs[] = {
    {"focus ring on the canvas", kAccent, kCanvas}, {"focus ring on a card", kAccent, kCard},
    {"focus ring on a control", kAccent, kControl}, {"focus ring on a field", kAccent, kField},
    {"tick on the accent", kTextOnAccent, kAccent}, {"progress line on a card", kAccent, kCard},
};

class TextPairs : public testing::TestWithParam<Pair> {};

TEST_P(TextPairs, AreReadableText) {
    EXPECT_GE(ContrastRatio(GetParam().ink, GetParam().ground), kReadableText) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(Tokens, TextPairs, testing::ValuesIn(kTextPairs), TestName);

class ShapePairs : public testing::TestWithParam<Pair> {};

TEST_P(ShapePairs, AreVisibleShapes) {
    EXPECT_GE(ContrastRatio(GetParam().ink, GetParam().ground), kReadableShape) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(Tokens, ShapePairs, testing::ValuesIn(kShapePairs), TestName);

TEST(Tokens, GroundsAreNeutralSoThatTheyDoNotTintThePicture) {
    for (const QRgb ground : {kCanvas, kCard, kCardEdge, kControl, kField, kFieldEdge}) {
        EXPECT_EQ(qRed(ground), qGreen(ground));
        EXPECT_EQ(qGreen(ground), qBlue(ground));
    }
}

TEST(Tokens, MixedGoesFromTheOneColourToTheOther) {
    EXPECT_EQ(Mixed(0xff102030, 0xfff0e0d0, 0), 0xff102030);
    EXPECT_EQ(Mixed(0xff102030, 0xfff0e0d0, 100), 0xfff0e0d0);
    EXPECT_EQ(Mixed(0xff000000, 0xffffffff, 50), 0xff808080);
}

TEST(Tokens, AnIconFitsItsButtonWithEqualMargins) {
    EXPECT_EQ((kIconButton - kIcon) % 2, 0);
}

} // namespace
} // namespace mirelle::look
