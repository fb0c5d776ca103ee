// The one table that the program prints, row by row as the measures end.
#pragma once

#include "bench/Measure.h"

#include <string>

namespace mirelle::bench {

// How long the rounds of a measure go on; and whether we run alone, without the peers, for a profiler.
struct Manner {
    double seconds = 1;
    bool alone = false;
};

class Table {
public:
    explicit Table(const Manner& manner) : manner_(manner) {}

    // What the table was taken with: machine, compiler, libraries; and how to read it.
    void PrintHead() const;
    void PrintTitle(const std::string& title) const;
    // A row for each peer.
    void Run(const Measure& measure);
    void PrintSum() const;
    // Whether every result was what it had to be.
    bool AllHold() const { return faults_ == 0; }

private:
    Manner manner_;
    int aims_ = 0;
    int met_ = 0;
    int missing_ = 0;
    int faults_ = 0;
};

} // namespace mirelle::bench
