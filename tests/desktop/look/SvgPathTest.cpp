#include "desktop/look/SvgPath.h"

#include <cmath>
#include <numbers>
#include <string>

#include <gmock/gmock.h>

namespace mirelle::look {
namespace {

// A path as text, numbers rounded to hundredths: "M1,2 L3,4 C1,1 2,2 3,3".
std::string Told(const QPainterPath& path) {
    std::string text;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        constexpr const char* kinds[] = {"M", "L", "C", ""};
        const auto number = [](double value) {
            std::string digits = std::to_string(std::round(value * 100) / 100 + 0.0);
            digits.erase(digits.find_last_not_of('0') + 1);
            if (digits.back() == '.') digits.pop_back();
            return digits;
        };
        text += (text.empty() ? "" : " ") + std::string(kinds[element.type]) + number(element.x) + "," +
                number(element.y);
    }
    return text;
}

std::string Read(std::string_view data) {
    const std::optional<QPainterPath> path = ReadPathData(data);
    return path ? Told(*path) : "fault";
}

struct PathCase {
    const char* name;
    const char* data;
    const char* told;
};

void PrintTo(const PathCase& row, std::ostream* out) {
    *out << row.data;
}

constexpr PathCase kPathCases[] = {
    {"AbsoluteLines", "M1 2L3 4", "M1,2 L3,4"},
    {"RelativeLines", "m1 2l3 4", "M1,2 L4,6"},
    {"FurtherPairsOfAMoveAreLines", "M1 2 3 4 5 6", "M1,2 L3,4 L5,6"},
    {"FurtherPairsOfARelativeMoveAreRelativeLines", "m1 2 3 4", "M1,2 L4,6"},
    {"HorizontalAndVertical", "M1 2H5V7h-1v-2", "M1,2 L5,2 L5,7 L4,7 L4,5"},
    {"ACommandGoesOnWithoutItsLetter", "M0 0L1 1 2 2,3 3", "M0,0 L1,1 L2,2 L3,3"},
    {"AbsoluteCubic", "M0 0C1 2 3 4 5 6", "M0,0 C1,2 3,4 5,6"},
    {"RelativeCubic", "M1 1c1 2 3 4 5 6", "M1,1 C2,3 4,5 6,7"},
    {"AQuadraticBecomesTheCubicOfTwoThirds", "M0 0Q3 3 6 0", "M0,0 C2,2 4,2 6,0"},
    {"RelativeQuadratic", "M1 1q3 3 6 0", "M1,1 C3,3 5,3 7,1"},
    {"CloseGoesBackToTheStart", "M1 1H3V3z", "M1,1 L3,1 L3,3 L1,1"},
    {"AfterACloseRelativeMovesStartAtItsStart", "M1 1H3V3zm1 1h1", "M1,1 L3,1 L3,3 L1,1 M2,2 L3,2"},
    {"NumbersNeedNoSeparatorBeforeAMinusOrASecondPoint", "M1-2L.5.5", "M1,-2 L0.5,0.5"},
    {"CommasLinesAndPlusSigns", "M 1,2\n L+3 , 4e0", "M1,2 L3,4"},
    {"NothingIsAnEmptyPath", "  ", ""},
    {"ALineBeforeAnyMove", "L1 2", "fault"},
    {"ACloseBeforeAnyMove", "Z", "fault"},
    {"ANumberBeforeAnyCommand", "1 2", "fault"},
    {"AMissingNumber", "M1", "fault"},
    {"AnOddNumberTooMany", "M0 0L1 2 3", "fault"},
    {"SmoothCurves", "M0 0S1 1 2 2", "fault"},
    {"Infinity", "M0 0Linf 2", "fault"},
    {"NotANumber", "M0 0L-nan 2", "fault"},
    {"BeyondAMillion", "M0 0L1e9 2", "fault"},
    {"ALoneMinus", "M0 0L- 2", "fault"},
    {"AFlagThatIsNeitherZeroNorOne", "M0 0A1 1 0 2 0 1 1", "fault"},
};

class PathData : public testing::TestWithParam<PathCase> {};

TEST_P(PathData, ReadsAsTold) {
    EXPECT_EQ(Read(GetParam().data), GetParam().told);
}

INSTANTIATE_TEST_SUITE_P(Svg, PathData, testing::ValuesIn(kPathCases),
                         [](const auto& row) { return row.param.name; });

double DistanceFrom(QPointF centre, QPointF point) {
    return std::hypot(point.x() - centre.x(), point.y() - centre.y());
}

// Every point of the path's curves lies on the circle, to a thousandth of its radius.
void ExpectOnCircle(const QPainterPath& path, QPointF centre, double radius) {
    for (int step = 0; step <= 100; ++step) {
        EXPECT_NEAR(DistanceFrom(centre, path.pointAtPercent(step / 100.0)), radius, radius / 1000)
            << step << "%";
    }
}

TEST(SvgArc, AQuarterStaysOnItsCircle) {
    const auto path = ReadPathData("M10 0A10 10 0 0 1 0 10");
    ASSERT_TRUE(path);
    EXPECT_EQ(path->elementCount(), 4); // one cubic
    ExpectOnCircle(*path, {0, 0}, 10);
}

TEST(SvgArc, TheFourPairsOfFlagsGiveTheFourArcs) {
    // From (10,0) to (0,10) with radius 10 the centre is (0,0) or (10,10), the arc a quarter or three.
    struct Row {
        const char* data;
        QPointF centre;
        double quarters;
    };
    for (const Row& row :
         {Row{"M10 0A10 10 0 0 1 0 10", {0, 0}, 1}, Row{"M10 0A10 10 0 1 0 0 10", {0, 0}, 3},
          Row{"M10 0A10 10 0 0 0 0 10", {10, 10}, 1}, Row{"M10 0A10 10 0 1 1 0 10", {10, 10}, 3}}) {
        const auto path = ReadPathData(row.data);
        ASSERT_TRUE(path) << row.data;
        ExpectOnCircle(*path, row.centre, 10);
        EXPECT_NEAR(path->length(), row.quarters * 5 * std::numbers::pi, 0.2) << row.data;
    }
}

TEST(SvgArc, EndsExactlyWhereItSays) {
    const auto path = ReadPathData("M3 4a5 6 30 1 1 .1 .2");
    ASSERT_TRUE(path);
    EXPECT_EQ(path->currentPosition(), QPointF(3.1, 4.2));
}

TEST(SvgArc, RadiiTooSmallGrowUntilTheyReach) {
    const auto path = ReadPathData("M0 0A1 1 0 0 1 20 0");
    ASSERT_TRUE(path);
    ExpectOnCircle(*path, {10, 0}, 10);
    EXPECT_NEAR(path->length(), 10 * std::numbers::pi, 0.2);
}

TEST(SvgArc, NegativeRadiiCountAsPositive) {
    EXPECT_EQ(Read("M0 0A-5 -5 0 0 1 5 5"), Read("M0 0A5 5 0 0 1 5 5"));
}

TEST(SvgArc, ARadiusOfZeroGivesALine) {
    EXPECT_EQ(Read("M0 0A0 5 0 0 1 5 5"), "M0,0 L5,5");
}

TEST(SvgArc, AnArcToItsOwnStartIsLeftOut) {
    EXPECT_EQ(Read("M2 3A5 5 0 1 1 2 3L4 4"), "M2,3 L4,4");
}

TEST(SvgArc, ATurnedEllipseLiesOnItsEllipse) {
    // Half an ellipse with radii 10 and 5, turned by 90 degrees, from its top to its bottom.
    const auto path = ReadPathData("M0 -10A10 5 90 0 1 0 10");
    ASSERT_TRUE(path);
    for (int step = 0; step <= 50; ++step) {
        const QPointF point = path->pointAtPercent(step / 50.0);
        EXPECT_NEAR(std::pow(point.x() / 5, 2) + std::pow(point.y() / 10, 2), 1, 0.002);
        EXPECT_GE(point.x(), -1e-6); // clockwise from the top: by the right
    }
}

TEST(SvgArc, FlagsMayStandWithoutSeparators) {
    EXPECT_EQ(Read("M0 0a5 5 0 015.5.5"), Read("M0 0a5 5 0 0 1 5.5 .5"));
}

TEST(SvgNumbers, AreReadWithBlanksAndCommas) {
    EXPECT_THAT(ReadNumbers(" 1,2 -3.5\t4 "), testing::Optional(testing::ElementsAre(1, 2, -3.5, 4)));
    EXPECT_THAT(ReadNumbers(""), testing::Optional(testing::IsEmpty()));
    EXPECT_EQ(ReadNumbers("1 x"), std::nullopt);
    EXPECT_EQ(ReadNumbers("1 2px"), std::nullopt);
}

} // namespace
} // namespace mirelle::look
