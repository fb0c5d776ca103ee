// What the runtime does when the memory can't be had: in this program allocations above a limit fail.
#include "forms/OutOfMemory.h"
#include "forms/Stretch.h"
#include "forms/Surface.h"
#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

namespace mirelle::test {
namespace {

std::size_t largestBlock = std::numeric_limits<std::size_t>::max();

// Blocks above a size fail as long as this lives.
class MemoryLimit {
public:
    explicit MemoryLimit(std::size_t largest) { largestBlock = largest; }
    ~MemoryLimit() { largestBlock = std::numeric_limits<std::size_t>::max(); }
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;
};

void* Block(std::size_t size) {
    void* const block = size <= largestBlock ? std::malloc(size == 0 ? 1 : size) : nullptr;
    if (block == nullptr) throw std::bad_alloc();
    return block;
}

} // namespace
} // namespace mirelle::test

void* operator new(std::size_t size) {
    return mirelle::test::Block(size);
}
void* operator new[](std::size_t size) {
    return mirelle::test::Block(size);
}
void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete[](void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    std::free(block);
}

namespace mirelle::test {
namespace {

constexpr std::size_t kSmall = 4096;

TEST(OutOfMemoryTest, ABitmapRaisesError7) {
    const MemoryLimit limit(kSmall);
    EXPECT_EQ(ErrorOf([] { Bitmap(100, 100); }), ErrorNumber::OutOfMemory);
}

TEST(OutOfMemoryTest, WhatIsLongerThanThereCanBeRaisesError7) {
    EXPECT_EQ(ErrorOf([] { WithinMemory([] { throw std::length_error("too long"); }); }),
              ErrorNumber::OutOfMemory);
}

TEST(OutOfMemoryTest, PaintingWhatOthersHoldRaisesError7AndLeavesIt) {
    Surface surface;
    surface.Resize(40, 40);
    surface.Paint().At(1, 1) = {1, 2, 3, 4};
    const Picture held = surface.Image();
    const MemoryLimit limit(kSmall);
    EXPECT_EQ(ErrorOf([&] { surface.Paint(); }), ErrorNumber::OutOfMemory);
    EXPECT_TRUE(surface.Image().SharesPixelsWith(held));
}

TEST(OutOfMemoryTest, AStretchRaisesError7InEitherOfItsWays) {
    const Bitmap source(900, 3, Pixel{1, 2, 3, 4});
    for (const int width : {300, 700}) { // three pixels to one; weighted
        Bitmap target(width, 1);
        const MemoryLimit limit(kSmall);
        EXPECT_EQ(ErrorOf([&] {
                      StretchHalftone(source, {0, 0, 900, 3}, target, {0, 0, width, 1});
                  }),
                  ErrorNumber::OutOfMemory)
            << width;
    }
}

} // namespace
} // namespace mirelle::test
