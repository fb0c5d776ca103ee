// The large blocks that are kept for the next bitmaps of their sizes.
#include "forms/PixelMemory.h"
#include "forms/WatchedMemory.h"

#include <gtest/gtest.h>

#include <cstring>
#include <thread>
#include <vector>

namespace mirelle {
namespace {

constexpr std::size_t kLarge = 6 << 20;

constexpr bool kKeeps = !kMemoryIsWatched;

class PixelMemory : public testing::Test {
protected:
    ~PixelMemory() override { ReleaseSparePixelMemory(); }
};

// The contents tell whether it is the block that was given back.
constexpr char kMark[] = "given back";

void GiveMarked(std::size_t bytes) {
    void* memory = TakePixelMemory(bytes);
    std::memcpy(static_cast<char*>(memory) + bytes / 2, kMark, sizeof kMark);
    GivePixelMemory(memory, bytes);
}

bool TakesMarked(std::size_t bytes) {
    void* memory = TakePixelMemory(bytes);
    const bool marked = std::memcmp(static_cast<char*>(memory) + bytes / 2, kMark, sizeof kMark) == 0;
    std::memset(static_cast<char*>(memory) + bytes / 2, 0, sizeof kMark);
    GivePixelMemory(memory, bytes);
    return marked;
}

TEST_F(PixelMemory, ALargeBlockComesBackForTheSameSize) {
    GiveMarked(kLarge);
    EXPECT_EQ(TakesMarked(kLarge), kKeeps);
}

TEST_F(PixelMemory, TwoSizesInTurnsBothComeBack) {
    GiveMarked(kLarge);
    GiveMarked(kLarge + 4);
    for (int turn = 0; turn < 3; ++turn) {
        GiveMarked(kLarge);
        EXPECT_EQ(TakesMarked(kLarge + 4), kKeeps) << turn;
        GiveMarked(kLarge + 4);
        EXPECT_EQ(TakesMarked(kLarge), kKeeps) << turn;
    }
}

TEST_F(PixelMemory, OfThreeSizesTheLastTwoAreKept) {
    GiveMarked(kLarge);
    GiveMarked(kLarge + 4);
    GiveMarked(kLarge + 8);
    EXPECT_EQ(TakesMarked(kLarge + 4), kKeeps);
    EXPECT_EQ(TakesMarked(kLarge + 8), kKeeps);
}

TEST_F(PixelMemory, SmallBlocksLetNoneGo) {
    GiveMarked(kLarge);
    for (const std::size_t small : {std::size_t{100}, std::size_t{1} << 20, std::size_t{2} << 20})
        GivePixelMemory(TakePixelMemory(small), small);
    EXPECT_EQ(TakesMarked(kLarge), kKeeps);
}

// What was never touched takes no memory.
TEST_F(PixelMemory, NoMoreThanAQuarterOfAGigabyteIsKept) {
    constexpr std::size_t kQuarter = std::size_t{1} << 28;
    GiveMarked(kQuarter - kLarge);
    GiveMarked(kLarge);
    EXPECT_EQ(TakesMarked(kLarge), kKeeps);
    EXPECT_EQ(TakesMarked(kQuarter - kLarge), kKeeps);
    ReleaseSparePixelMemory();

    GiveMarked(kQuarter - kLarge);
    GiveMarked(kLarge + 4);
    EXPECT_EQ(TakesMarked(kLarge + 4), kKeeps);
    ReleaseSparePixelMemory();

    GivePixelMemory(TakePixelMemory(kQuarter + 4), kQuarter + 4);
    EXPECT_FALSE(ReleaseSparePixelMemory());
}

TEST_F(PixelMemory, IsGivenUpWhereItIsAskedFor) {
    EXPECT_FALSE(ReleaseSparePixelMemory());
    GiveMarked(kLarge);
    EXPECT_EQ(ReleaseSparePixelMemory(), kKeeps);
    EXPECT_FALSE(ReleaseSparePixelMemory());
}

#if defined(MIRELLE_TESTS_ARE_WATCHED)
TEST_F(PixelMemory, IsNeverKeptFromASanitizerThatWatches) {
    EXPECT_TRUE(kMemoryIsWatched);
    void* const memory = TakePixelMemory(kLarge);
    GivePixelMemory(memory, kLarge);
    EXPECT_DEATH(static_cast<volatile char*>(memory)[0] = 1, "use-after-free");
}
#endif

TEST_F(PixelMemory, OneBlockIsKeptTheLastOne) {
    void* first = TakePixelMemory(kLarge);
    void* second = TakePixelMemory(kLarge);
    EXPECT_NE(first, second);
    std::memcpy(static_cast<char*>(second) + kLarge / 2, kMark, sizeof kMark);
    GivePixelMemory(first, kLarge);
    GivePixelMemory(second, kLarge);
    EXPECT_EQ(TakesMarked(kLarge), kKeeps);
}

TEST_F(PixelMemory, ServesThreadsSideBySide) {
    std::vector<std::jthread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([t] {
            for (int i = 0; i < 200; ++i) {
                auto* memory = static_cast<char*>(TakePixelMemory(kLarge));
                memory[0] = memory[kLarge - 1] = static_cast<char>(t);
                std::this_thread::yield();
                EXPECT_EQ(memory[0], static_cast<char>(t));
                EXPECT_EQ(memory[kLarge - 1], static_cast<char>(t));
                GivePixelMemory(memory, kLarge);
            }
        });
    }
}

TEST_F(PixelMemory, ACountThatNoSizeHoldsIsRefused) {
    PixelAllocator<int> allocator;
    EXPECT_THROW(static_cast<void>(allocator.allocate(static_cast<std::size_t>(-1) / 2)), std::bad_alloc);
}

} // namespace
} // namespace mirelle
