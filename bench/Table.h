// The one table that the program prints, row by row as the measures end.
#pragma once

#include "bench/Measure.h"

#include <string>

namespace mirelle::bench {

class Table {
public:
    // What the table was taken with: machine, compiler, libraries; and how to read it.
    void PrintHead() const;
    void PrintTitle(const std::string& title) const;
    // A row for each peer. `seconds` is how long the rounds go on.
    void Run(const Measure& measure, double seconds);
    void PrintSum() const;
    // Whether every result was what it had to be.
    bool AllHold() const { return faults_ == 0; }

private:
    int aims_ = 0;
    int met_ = 0;
    int missing_ = 0;
    int faults_ = 0;
};

} // namespace mirelle::bench
