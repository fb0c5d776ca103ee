#include "bench/Rounds.h"

#include "bench/OneCore.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace mirelle::bench {
namespace {

constexpr int kFewestRounds = 5;
constexpr int kMostRounds = 200;
constexpr double kNever = std::numeric_limits<double>::infinity();

void Round(const Contest& contest, Times& least) {
    least.ours = std::min(least.ours, contest.ours());
    for (std::size_t i = 0; i < contest.peers.size(); ++i) {
        if (contest.peers[i].run) least.peers[i] = std::min(least.peers[i], contest.peers[i].run());
    }
    ++least.rounds;
}

} // namespace

Times RunRounds(const Contest& contest, Cores cores, double seconds) {
    std::optional<OneCore> oneCore;
    if (cores == Cores::One) oneCore.emplace();
    Times least{kNever, std::vector<double>(contest.peers.size(), kNever)};
    double passed = 0;
    while (least.rounds < kFewestRounds || (passed < seconds && least.rounds < kMostRounds))
        passed += Seconds([&] { Round(contest, least); });
    return least;
}

} // namespace mirelle::bench
