// Chains of blends give the bytes of the blends done one after the other.
#include "gradient/BlendChains.h"

#include "forms/AlphaBlend.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace mirelle::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

std::uint8_t OneByOne(std::uint8_t to, std::uint8_t from, const Bytes& alphas) {
    for (const std::uint8_t alpha : alphas)
        to = Blended(from, to, alpha);
    return to;
}

// Every pair of bytes.
struct Pairs {
    Pairs() {
        for (int i = 0; i < 65536; ++i) {
            to.push_back(static_cast<std::uint8_t>(i));
            from.push_back(static_cast<std::uint8_t>(i >> 8));
        }
    }
    Bytes to, from;
};

TEST(BlendChainTest, OneBlendIsABlendForEveryPairAndAlpha) {
    const Pairs pairs;
    for (int alpha = 0; alpha < 256; ++alpha) {
        const Bytes chain{static_cast<std::uint8_t>(alpha)};
        Bytes drawn = pairs.to;
        BlendChain(drawn.data(), pairs.from.data(), chain, drawn.size());
        for (std::size_t i = 0; i < drawn.size(); ++i)
            ASSERT_EQ(drawn[i], Blended(pairs.from[i], pairs.to[i], chain[0])) << alpha << " " << i;
    }
}

TEST(BlendChainTest, LongerChainsAreTheirBlendsOneAfterTheOther) {
    const Pairs pairs;
    for (const Bytes& chain : {Bytes{1, 1, 1, 2, 2}, Bytes{20, 20, 21, 21, 22}, Bytes{100, 101, 102},
                               Bytes{250, 3, 255, 90}, Bytes{0}, Bytes{}}) {
        Bytes drawn = pairs.to;
        BlendChain(drawn.data(), pairs.from.data(), chain, drawn.size());
        for (std::size_t i = 0; i < drawn.size(); ++i)
            ASSERT_EQ(drawn[i], OneByOne(pairs.to[i], pairs.from[i], chain)) << i;
    }
}

TEST(BlendChainTest, ATableHasAChainForEachByteOfARunOfAnyLength) {
    std::mt19937 random(5);
    const auto byte = [&] { return static_cast<std::uint8_t>(random()); };
    for (const std::size_t bytes : {1U, 4U, 255U, 256U, 257U, 1000U}) {
        constexpr std::size_t links = 4;
        ChainTable table(bytes, links);
        std::vector<Bytes> chains(bytes);
        Bytes to, from;
        for (std::size_t i = 0; i < bytes; ++i) {
            to.push_back(byte());
            from.push_back(byte());
            for (std::size_t link = 0; link < i % (links + 1); ++link) {
                chains[i].push_back(byte());
                table.Set(link, i, chains[i].back());
            }
        }
        Bytes drawn = to;
        table.Blend(drawn.data(), from.data(), bytes);
        for (std::size_t i = 0; i < bytes; ++i)
            ASSERT_EQ(drawn[i], OneByOne(to[i], from[i], chains[i])) << bytes << " " << i;
    }
}

TEST(LimitOfTest, IsThereExactlyWhereAChainLeavesShorterDistancesAlone) {
    for (int alpha = 0; alpha < 256; ++alpha) {
        for (const std::size_t links : {1U, 2U, 9U, 15U}) {
            const Bytes chain(links, static_cast<std::uint8_t>(alpha));
            Bytes left;
            for (int distance = 0; distance < 256; ++distance)
                left.push_back(OneByOne(static_cast<std::uint8_t>(distance), 0, chain));
            bool limits = true;
            for (int distance = 0; distance < 256; ++distance)
                limits =
                    limits && left[static_cast<std::size_t>(distance)] == std::min<int>(distance, left[255]);
            const auto limit = LimitOf(chain);
            ASSERT_EQ(limit.has_value(), limits) << alpha << " " << links;
            if (limit) {
                EXPECT_EQ(*limit, left[255]) << alpha << " " << links;
            }
        }
    }
    EXPECT_EQ(LimitOf({}), 255);
    EXPECT_EQ(LimitOf(Bytes{255}), 0);
    EXPECT_EQ(LimitOf(Bytes(15, 128)), 0);
    EXPECT_EQ(LimitOf(Bytes(1, 128)), std::nullopt);
}

TEST(LimitDistancesTest, BringsEachByteAsNearAsItsLimitTells) {
    const Pairs pairs;
    for (const int limit : {0, 1, 2, 100, 254, 255}) {
        Bytes one = pairs.to;
        LimitDistances(one.data(), pairs.from.data(), static_cast<std::uint8_t>(limit), one.size());
        Bytes each = pairs.to;
        const Bytes limits(each.size(), static_cast<std::uint8_t>(limit));
        LimitDistances(each.data(), pairs.from.data(), limits.data(), each.size());
        for (std::size_t i = 0; i < one.size(); ++i) {
            const int expected = std::clamp<int>(pairs.to[i], pairs.from[i] - limit, pairs.from[i] + limit);
            ASSERT_EQ(one[i], expected) << limit << " " << i;
            ASSERT_EQ(each[i], expected) << limit << " " << i;
        }
    }
}

} // namespace
} // namespace mirelle::test
