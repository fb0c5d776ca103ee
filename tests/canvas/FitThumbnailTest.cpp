#include "canvas/FitThumbnail.h"

#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

struct Row {
    const char* name;
    float materialWidth, materialHeight;
    float startWidth, startHeight;
    float width, height;
};

class FitThumbnailTest : public ::testing::TestWithParam<Row> {};

TEST_P(FitThumbnailTest, GivesTheToldSize) {
    const Row& row = GetParam();
    TestProgram program;
    program.form.picSmall.Width = row.materialWidth;
    program.form.picSmall.Height = row.materialHeight;
    FitThumbnail(program.form, row.startWidth, row.startHeight);
    EXPECT_EQ(program.form.Image1.Width, row.width);
    EXPECT_EQ(program.form.Image1.Height, row.height);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FitThumbnailTest,
    ::testing::Values(Row{"SmallCropGrowsOnce", 200, 70, 100, 35, 300, 105},
                      Row{"LargePasteShrinksAndLosesItsRatioBelow300", 1000, 800, 900, 720, 400, 300},
                      Row{"WidthAbove400Becomes350", 1200, 500, 1080, 450, 350, 200},
                      Row{"WidthAbove650IsTakenAgain", 900, 200, 810, 180, 360, 80},
                      Row{"HeightOfExactly350Stays350UntilTheLastLimit", 400, 350, 400, 350, 400, 300},
                      Row{"TallMaterialIsShrunkByItsHeight", 300, 1000, 270, 900, 120, 300},
                      Row{"FactorsAreNotRoundedAheadOfTheProduct", 361, 900, 325, 810, 144.4F, 300},
                      Row{"NoMaterialAtAll", 0, 0, 0, 0, 0, 0},
                      Row{"OddSizesKeepTheirFractions", 71, 33, 35.5F, 16.5F, 106.5F, 49.5F}),
    [](const auto& row) { return row.param.name; });

} // namespace
} // namespace mirelle::test
