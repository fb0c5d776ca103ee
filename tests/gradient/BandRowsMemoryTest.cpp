// What drawing a gradient's rows takes. In a program of its own, because it replaces the allocation of the
// whole program.
#include "gradient/BandRows.h"
#include "tests/codecs/ScarceMemory.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

TEST(BandRowsMemory, IsTakenBeforeTheFirstRowIsDrawn) {
    for (const int direction : {kHorizontal, kVertical}) {
        constexpr int kSide = 300;
        Bitmap destination(kSide, kSide, Pixel{200, 100, 50, 0});
        const Bitmap source(kSide, kSide, Pixel{10, 20, 30, 0});
        // Steps wider and narrower than a pixel: chains of one link and of many, and what lies beside them.
        for (const double end : {60.0, 290.0}) {
            const auto rows =
                BandRows::Of(BandsOf({kSide, kSide, kSide, kSide}, 10, end, direction), kSide, kSide, source);
            ASSERT_TRUE(rows);
            const CountedMemory counted;
            for (int y = 0; y < kSide; ++y)
                rows->Draw(y, destination.Row(y), destination.Row(y));
            EXPECT_EQ(counted.Bytes(), 0U) << direction << " " << end;
        }
        EXPECT_EQ(destination.At(kSide - 1, kSide - 1), source.At(0, 0)) << direction;
    }
}

} // namespace
} // namespace mirelle::test
