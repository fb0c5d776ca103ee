// Running a contest: ours, the peers, ours, the peers, round after round, so that whatever else goes on in
// the machine meets all of them. The least time of each counts: other work can only add to it.
#pragma once

#include "bench/Measure.h"

#include <vector>

namespace mirelle::bench {

struct Times {
    double ours = 0;           // in the measure's unit, as a run tells
    std::vector<double> peers; // in the contest's order; infinite where the peer is missing
    int rounds = 0;
};

// Some rounds at least, and more until so many seconds have passed.
Times RunRounds(const Contest& contest, Cores cores, double seconds);

} // namespace mirelle::bench
