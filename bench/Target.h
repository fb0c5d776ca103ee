// Where a peer puts its result: memory in the state in which the program meets its own.
#pragma once

#include "bench/Measure.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace mirelle::bench {

// The system gets back what the program and its libraries keep for the next time: whoever asks for memory
// afterwards gets it fresh. Blocks of pixels are the program's own to keep; others are the allocator's.
void GiveMemoryBack();

class Target {
public:
    Target(std::size_t bytes, Memory memory);

    // Before a round, and not in what is timed: fresh memory is given back.
    void Ready();
    // In what is timed: fresh memory is asked for in here.
    std::span<std::uint8_t> Bytes();

private:
    std::size_t bytes_;
    Memory memory_;
    std::unique_ptr<std::uint8_t[]> block_;
};

} // namespace mirelle::bench
