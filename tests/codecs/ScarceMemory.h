// Memory that runs out when a test says so. A program that links this has its allocation replaced.
#pragma once

#include <cstddef>

namespace mirelle::test {

// Which allocations fail once memory has run out.
enum class Scarcity { FromThereOn, OneAlone };

// Memory for so many allocations more while it lives.
class MemoryFor {
public:
    explicit MemoryFor(long allocations, Scarcity scarcity = Scarcity::FromThereOn);
    ~MemoryFor();
    MemoryFor(const MemoryFor&) = delete;
    MemoryFor& operator=(const MemoryFor&) = delete;

    // Whether an allocation has failed since the last of these began.
    static bool RanOut();
};

// The bytes that were asked for while it lives, those that were given back too.
class CountedMemory {
public:
    CountedMemory();

    std::size_t Bytes() const;

private:
    std::size_t before_;
};

} // namespace mirelle::test
