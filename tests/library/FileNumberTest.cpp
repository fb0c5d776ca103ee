#include "library/FileNumber.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

struct NumberRow {
    const char* fileName;
    double number;
};

class NumberOfFileNameTest : public ::testing::TestWithParam<NumberRow> {};

TEST_P(NumberOfFileNameTest, ReadsTheLeadingNumberOfTheLastPiece) {
    EXPECT_EQ(NumberOfFileName(GetParam().fileName), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(Names, NumberOfFileNameTest,
                         ::testing::Values(NumberRow{"Art_12.jpg", 12}, NumberRow{"Art_0012.jpg", 12},
                                           NumberRow{"Art_4b.jpg", 4}, NumberRow{"Art_.jpg", 0},
                                           NumberRow{"My_brick_3.jpg", 3}, NumberRow{"Art_12_x.jpg", 0},
                                           NumberRow{"wood.jpg", 0}, NumberRow{"7up.jpg", 7},
                                           NumberRow{"", 0}, NumberRow{"_", 0}, NumberRow{"Art_-5.jpg", -5},
                                           NumberRow{"Art_2.5.jpg", 2.5}, NumberRow{"Art_99999.jpg", 99999}));

TEST(CountText, IsSingularForOneFileAlone) {
    EXPECT_EQ(CountText(0), "0 Files");
    EXPECT_EQ(CountText(1), "1 File");
    EXPECT_EQ(CountText(2), "2 Files");
    EXPECT_EQ(CountText(100000), "100000 Files");
}

} // namespace
} // namespace mirelle
