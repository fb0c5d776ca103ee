// What the runtime does when the memory can't be had: in this program allocations above a limit fail, or
// those after a number of others.
#include "forms/RunTimeError.h"
#include "forms/Stretch.h"
#include "forms/Surface.h"
#include "forms/WatchedMemory.h"
#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <initializer_list>
#include <limits>
#include <optional>
#include <vector>

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

// The next allocations succeed, one fails after them, and all further ones succeed.
constexpr long kNever = -1;
long untilFailure = kNever;

class FailureAfter {
public:
    explicit FailureAfter(long allocations) { untilFailure = allocations; }
    ~FailureAfter() { untilFailure = kNever; }
    FailureAfter(const FailureAfter&) = delete;
    FailureAfter& operator=(const FailureAfter&) = delete;

    bool Happened() const { return untilFailure == kNever; }
};

const void* watched = nullptr;
bool watchedIsFreed = false;

bool IsRefused(std::size_t size) {
    if (size > largestBlock) return true;
    return untilFailure != kNever && untilFailure-- == 0;
}

// As the library's own does, asking the handler as long as there is one.
void* Block(std::size_t size) {
    for (;;) {
        void* const block = IsRefused(size) ? nullptr : std::malloc(size == 0 ? 1 : size);
        if (block != nullptr) return block;
        const std::new_handler handler = std::get_new_handler();
        if (handler == nullptr) throw std::bad_alloc();
        handler();
    }
}

void Free(void* block) {
    if (block != nullptr && block == watched) watchedIsFreed = true;
    std::free(block);
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
    mirelle::test::Free(block);
}
void operator delete[](void* block) noexcept {
    mirelle::test::Free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    mirelle::test::Free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    mirelle::test::Free(block);
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

constexpr std::size_t kLarge = 6 << 20;

TEST(OutOfMemoryTest, WhatIsKeptForBitmapsIsGivenUpBeforeAnyAllocationFails) {
    if (kMemoryIsWatched) GTEST_SKIP() << "nothing is kept";
    watched = TakePixelMemory(kLarge);
    watchedIsFreed = false;
    GivePixelMemory(const_cast<void*>(watched), kLarge);
    ASSERT_FALSE(watchedIsFreed);
    {
        const FailureAfter failure(0);
        EXPECT_EQ(std::vector<char>(100).size(), 100U);
        EXPECT_TRUE(failure.Happened());
    }
    EXPECT_TRUE(watchedIsFreed);
    watched = nullptr;
    // There is nothing left to give up.
    const FailureAfter failure(0);
    EXPECT_THROW(std::vector<char>(100), std::bad_alloc);
}

// Gives back a block of each size, one after the other; whether the first one is with the system then.
bool LetsTheFirstGo(std::initializer_list<std::size_t> sizes) {
    std::vector<void*> blocks;
    for (const std::size_t size : sizes)
        blocks.push_back(TakePixelMemory(size));
    watched = blocks.front();
    watchedIsFreed = false;
    auto block = blocks.begin();
    for (const std::size_t size : sizes)
        GivePixelMemory(*block++, size);
    const bool gone = watchedIsFreed;
    ReleaseSparePixelMemory();
    watched = nullptr;
    return gone;
}

TEST(OutOfMemoryTest, WhatIsKeptForBitmapsIsTheLastBlockOfTheLastTwoSizes) {
    constexpr std::size_t kMost = std::size_t{1} << 28;
    EXPECT_EQ(LetsTheFirstGo({kLarge, kLarge + 4}), kMemoryIsWatched);
    EXPECT_TRUE(LetsTheFirstGo({kLarge, kLarge + 4, kLarge + 8}));
    EXPECT_TRUE(LetsTheFirstGo({kLarge, kLarge}));
    EXPECT_EQ(LetsTheFirstGo({kLarge, kMost - kLarge}), kMemoryIsWatched);
    EXPECT_TRUE(LetsTheFirstGo({kLarge + 4, kMost - kLarge}));
    EXPECT_TRUE(LetsTheFirstGo({kMost + 4}));
    EXPECT_TRUE(LetsTheFirstGo({kLarge / 2}));
}

TEST(OutOfMemoryTest, AStatementIsPassedOverWhereverItAskedForMemory) {
    const FailureAfter failure(0);
    bool went = false;
    EXPECT_FALSE(ResumeNext([&] { went = std::vector<char>(100).size() == 100; }));
    EXPECT_FALSE(went);
}

// Runs work on a surface anew for each of its allocations, which fails: error 7, and what was there stays.
void ExpectThatNoFailureLosesAnything(bool isHeld, const std::function<void(Surface&)>& work) {
    for (long allocations = 0;; ++allocations) {
        Surface surface;
        surface.Resize(40, 30);
        surface.Paint().At(3, 2) = {1, 2, 3, 4};
        const Picture held = isHeld ? surface.Image() : Picture();
        const Bitmap before = surface.Image().Pixels();
        bool happened = false;
        std::optional<ErrorNumber> error;
        {
            const FailureAfter failure(allocations);
            error = ErrorOf([&] { work(surface); });
            happened = failure.Happened();
        }
        if (!happened) {
            EXPECT_EQ(error, std::nullopt);
            EXPECT_GT(allocations, 0) << "nothing could fail";
            return;
        }
        ASSERT_EQ(error, ErrorNumber::OutOfMemory) << allocations;
        ASSERT_EQ(surface.Width(), 40) << allocations;
        ASSERT_TRUE(surface.Image().Pixels() == before) << allocations;
    }
}

TEST(OutOfMemoryTest, ASurfaceThatCannotBeResizedKeepsWhatWasPainted) {
    ExpectThatNoFailureLosesAnything(false, [](Surface& surface) { surface.Resize(80, 60); });
}

TEST(OutOfMemoryTest, ASurfaceThatCannotBePaintedKeepsWhatItShows) {
    const Bitmap whole(40, 30, Pixel{9, 9, 9, 9});
    ExpectThatNoFailureLosesAnything(true, [](Surface& surface) { surface.Paint(); });
    ExpectThatNoFailureLosesAnything(true, [](Surface& surface) {
        surface.PaintRows([](int, auto, auto row) { std::ranges::fill(row, Pixel{}); });
    });
    ExpectThatNoFailureLosesAnything(true, [&](Surface& surface) {
        surface.Copy(whole, {0, 0, 40, 30}, 0, 0);
    });
}

TEST(OutOfMemoryTest, ASurfaceThatCannotBeStretchedOnIsNotPainted) {
    const Picture picture(Bitmap(90, 70, Pixel{9, 9, 9, 9}));
    for (long allocations = 0;; ++allocations) {
        Surface surface;
        surface.Resize(40, 30);
        const FailureAfter failure(allocations);
        const std::optional<ErrorNumber> error = ErrorOf([&] { surface.Stretch(picture); });
        EXPECT_EQ(surface.IsBlank(), error.has_value()) << allocations;
        if (!failure.Happened()) {
            EXPECT_GT(allocations, 2) << "after the image's own";
            return;
        }
    }
}

TEST(OutOfMemoryTest, AnImageThatCannotBeMadeRaisesError7) {
    for (long allocations = 0; allocations < 2; ++allocations) {
        Surface surface;
        surface.Resize(40, 30);
        const FailureAfter failure(allocations);
        EXPECT_EQ(ErrorOf([&] { surface.Image(); }), ErrorNumber::OutOfMemory) << allocations;
    }
}

TEST(OutOfMemoryTest, APictureThatCannotBeMadeOrCopiedRaisesError7) {
    Bitmap bitmap(10, 10);
    const Picture picture(Bitmap(10, 10));
    {
        const FailureAfter failure(0);
        EXPECT_EQ(ErrorOf([&] { Picture(std::move(bitmap)); }), ErrorNumber::OutOfMemory);
    }
    const FailureAfter failure(0);
    EXPECT_EQ(ErrorOf([&] { picture.CopyBitmap(); }), ErrorNumber::OutOfMemory);
}

} // namespace
} // namespace mirelle::test
