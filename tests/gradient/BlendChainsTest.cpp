// Chains of blends give the bytes of the blends done one after the other.
#include "gradient/BlendChains.h"

#include "forms/AlphaBlend.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <span>
#include <string>
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

// Drawn over itself.
BlendRun Over(Bytes& drawn, const Bytes& from) {
    return {drawn.data(), drawn.data(), from.data(), drawn.size()};
}

std::vector<Alphas> PartsOf(const std::vector<Bytes>& chains) {
    return {chains.begin(), chains.end()};
}

TEST(BlendChainTest, OneBlendIsABlendForEveryPairAndAlpha) {
    const Pairs pairs;
    for (int alpha = 0; alpha < 256; ++alpha) {
        const Bytes chain{static_cast<std::uint8_t>(alpha)};
        Bytes drawn = pairs.to;
        BlendChains(chain).Blend(Over(drawn, pairs.from));
        for (std::size_t i = 0; i < drawn.size(); ++i)
            ASSERT_EQ(drawn[i], Blended(pairs.from[i], pairs.to[i], chain[0])) << alpha << " " << i;
    }
}

TEST(BlendChainTest, LongerChainsAreTheirBlendsOneAfterTheOther) {
    const Pairs pairs;
    for (const Bytes& chain : {Bytes{1, 1, 1, 2, 2}, Bytes{20, 20, 21, 21, 22}, Bytes{100, 101, 102},
                               Bytes{250, 3, 255, 90}, Bytes{0}, Bytes{}}) {
        Bytes drawn = pairs.to;
        BlendChains(chain).Blend(Over(drawn, pairs.from));
        for (std::size_t i = 0; i < drawn.size(); ++i)
            ASSERT_EQ(drawn[i], OneByOne(pairs.to[i], pairs.from[i], chain)) << i;
    }
}

TEST(BlendChainTest, MayGoToOtherMemoryAndLeavesWhatWasThere) {
    const Pairs pairs;
    const Bytes chain{20, 20, 21, 21, 22};
    Bytes drawn(1000, 7);
    const Bytes was(pairs.to.begin() + 300, pairs.to.begin() + 1300);
    BlendChains(chain).Blend({drawn.data(), was.data(), pairs.from.data(), drawn.size() - 1});
    for (std::size_t i = 0; i + 1 < drawn.size(); ++i)
        ASSERT_EQ(drawn[i], OneByOne(was[i], pairs.from[i], chain)) << i;
    EXPECT_EQ(drawn.back(), 7);
    EXPECT_TRUE(std::ranges::equal(was, std::span(pairs.to).subspan(300, 1000)));
}

TEST(BlendChainTest, HasAChainForEachPlaceOfARunOfAnyLength) {
    std::mt19937 random(5);
    const auto byte = [&] { return static_cast<std::uint8_t>(random()); };
    for (const std::size_t bytesOfEach : {1U, 4U}) {
        for (const std::size_t places : {1U, 4U, 255U, 256U, 257U, 1000U}) {
            constexpr std::size_t kMostLinks = 4;
            std::vector<Bytes> chains(places);
            Bytes to, from;
            for (std::size_t place = 0; place < places; ++place) {
                for (std::size_t link = 0; link < place % (kMostLinks + 1); ++link)
                    chains[place].push_back(byte());
                for (std::size_t i = 0; i < bytesOfEach; ++i) {
                    to.push_back(byte());
                    from.push_back(byte());
                }
            }
            Bytes drawn = to;
            BlendChains(PartsOf(chains), bytesOfEach).Blend(Over(drawn, from));
            for (std::size_t i = 0; i < drawn.size(); ++i)
                ASSERT_EQ(drawn[i], OneByOne(to[i], from[i], chains[i / bytesOfEach])) << places << " " << i;
        }
    }
}

void ExpectEachToBlendItsOwn(const std::vector<Bytes>& chains, std::size_t bytesOfEach) {
    std::mt19937 random(7);
    Bytes to(bytesOfEach * chains.size()), from(to.size());
    for (Bytes* bytes : {&to, &from})
        std::ranges::generate(*bytes, [&] { return static_cast<std::uint8_t>(random()); });
    Bytes drawn = to;
    BlendChains(PartsOf(chains), bytesOfEach).Blend(Over(drawn, from));
    for (std::size_t i = 0; i < drawn.size(); ++i)
        EXPECT_EQ(drawn[i], OneByOne(to[i], from[i], chains[i / bytesOfEach])) << bytesOfEach << " " << i;
}

// Where bands of one width follow each other: those that begin at each place, in rising order, and how far
// each reaches.
struct Following {
    const char* name;
    std::vector<int> beginning;
    int width;
    int lastPlace; // of the chains; the bands may end before it
};

class FollowingBandsTest : public testing::TestWithParam<Following> {};

TEST_P(FollowingBandsTest, BlendEachPlaceWithTheBandsThatMeetIt) {
    const auto& [name, beginning, width, lastPlace] = GetParam();
    std::vector<Bytes> chains(static_cast<std::size_t>(lastPlace) + 1);
    for (std::size_t band = 0; band < beginning.size(); ++band) {
        for (int place = beginning[band]; place < std::min(beginning[band] + width, lastPlace + 1); ++place)
            chains[static_cast<std::size_t>(place)].push_back(static_cast<std::uint8_t>(band % 255 + 1));
    }
    for (const std::size_t bytesOfEach : {1U, 4U})
        ExpectEachToBlendItsOwn(chains, bytesOfEach);
}

std::vector<int> EveryPlace(int count) {
    std::vector<int> places(static_cast<std::size_t>(count));
    std::iota(places.begin(), places.end(), 0);
    return places;
}

INSTANTIATE_TEST_SUITE_P(, FollowingBandsTest,
                         testing::Values(Following{"OneAtEveryPlace", EveryPlace(300), 15, 299},
                                         Following{"TheLastOnesAlone", EveryPlace(300), 15, 320},
                                         Following{"EndingAtOnce", EveryPlace(200), 9, 199},
                                         Following{"NoneAtSome", {0, 1, 2, 4, 5, 9, 10, 11, 12}, 4, 15},
                                         Following{"TwoAtOne", {0, 1, 3, 3, 4, 5, 6, 6, 8}, 4, 12},
                                         Following{"LaterThanTheFirstPlace", {3, 4, 5, 6, 7}, 3, 9},
                                         Following{"OfOnePlace", EveryPlace(70), 1, 70}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(BlendChainTest, ChainsThatDoNotFollowEachOtherKeepTheirOwnAlphas) {
    const std::vector<std::vector<Bytes>> lists{{{9}},
                                                {{5, 6}, {}},
                                                {{7}, {7}},
                                                {{}, {7}, {7}, {}},
                                                {{0, 7}, {7}},
                                                {{7, 0}, {7}},
                                                {{1, 2, 3}, {2, 3, 4}, {3, 5, 6}},
                                                {{1, 2}, {2, 3}, {4}}};
    for (const std::vector<Bytes>& chains : lists) {
        for (const std::size_t bytesOfEach : {1U, 4U})
            ExpectEachToBlendItsOwn(chains, bytesOfEach);
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
        LimitDistances(Over(one, pairs.from), Bytes(1, static_cast<std::uint8_t>(limit)));
        Bytes each = pairs.to;
        const Bytes limits(each.size(), static_cast<std::uint8_t>(limit));
        LimitDistances(Over(each, pairs.from), limits);
        for (std::size_t i = 0; i < one.size(); ++i) {
            const int expected = std::clamp<int>(pairs.to[i], pairs.from[i] - limit, pairs.from[i] + limit);
            ASSERT_EQ(one[i], expected) << limit << " " << i;
            ASSERT_EQ(each[i], expected) << limit << " " << i;
        }
    }
}

} // namespace
} // namespace mirelle::test
