#include "codecs/jpeg/Share.h"
#include "forms/RunTimeError.h"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <vector>

namespace mirelle::jpeg {
namespace {

TEST(JpegSlices, CoverTheWholeCountWithoutAGap) {
    for (std::size_t count = 0; count < 300; count += 7) {
        for (const std::size_t shortest : {1U, 2U, 5U, 64U, 1000U}) {
            const Slices slices(count, shortest);
            std::size_t next = 0;
            for (std::size_t slice = 0; slice < slices.Number(); ++slice) {
                EXPECT_EQ(slices.Begin(slice), next);
                next = slices.End(slice);
                EXPECT_TRUE(slices.Number() == 1 || next - slices.Begin(slice) >= shortest);
            }
            EXPECT_EQ(next, count);
        }
    }
}

TEST(JpegSlices, AreSeveralWhereThereIsEnoughForThem) {
    EXPECT_EQ(Slices(99, 50).Number(), 1U);
    EXPECT_EQ(Slices(100, 50).Number(), 2U);
    EXPECT_GT(Slices(1000000, 50).Number(), 16U);
}

TEST(JpegShare, RunsEverySliceOnce) {
    const Slices slices(1000, 10);
    std::vector<std::atomic<int>> runs(slices.Number());
    RunShared(slices, [&](std::size_t slice) { ++runs[slice]; });
    for (const auto& count : runs)
        EXPECT_EQ(count, 1);
}

TEST(JpegShare, RaisesWhatASliceRaises) {
    const Slices slices(1000, 10);
    EXPECT_THROW(RunShared(slices,
                           [](std::size_t slice) {
                               if (slice == 3) throw RunTimeError(ErrorNumber::OutOfMemory);
                           }),
                 RunTimeError);
    EXPECT_THROW(RunShared(Slices(1, 1), [](std::size_t) { throw std::runtime_error("alone"); }),
                 std::runtime_error);
}

} // namespace
} // namespace mirelle::jpeg
