// The one table that the program prints, row by row as the measures end.
#pragma once

#include "bench/Measure.h"

#include <string>

namespace mirelle::bench {

struct Manner {
    double seconds = 1;  // how long the rounds of a measure go on
    bool alone = false;  // without the peers, for a profiler
    std::string picture; // what is measured on, for the head
};

class Table {
public:
    explicit Table(const Manner& manner) : manner_(manner) {}

    // What the table was taken with: machine, compiler, libraries; and how to read it.
    void PrintHead() const;
    void PrintTitle(const std::string& title) const;
    // A row for each peer. Raises nothing: what can't be run is printed as a fault.
    void Run(const Measure& measure);
    void PrintSum() const;
    // Whether everything ran, and every result that a row looks at was what it had to be.
    bool AllHold() const { return faults_ == 0; }

private:
    void RunPrepared(const Measure& measure, const Contest& contest);
    void PrintFault(const std::string& fault);

    Manner manner_;
    int aims_ = 0;
    int met_ = 0;
    int missing_ = 0;
    int faults_ = 0;
};

} // namespace mirelle::bench
