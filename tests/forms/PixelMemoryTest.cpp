// The large block that is kept for the next bitmap of its size.
#include "forms/PixelMemory.h"

#include <gtest/gtest.h>

#include <cstring>
#include <thread>
#include <vector>

namespace mirelle {
namespace {

constexpr std::size_t kLarge = 3 << 20;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kKeeps = false;
#else
constexpr bool kKeeps = true;
#endif

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

TEST_F(PixelMemory, AnotherSizeLetsItGo) {
    GiveMarked(kLarge);
    EXPECT_FALSE(TakesMarked(kLarge + 4));
    EXPECT_FALSE(TakesMarked(kLarge));
}

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
