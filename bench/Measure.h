// A measure: one piece of work of ours, and what it is compared with.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace mirelle::bench {

// Does its work once and tells in seconds of wall time how long the part that counts took, or in the
// measure's unit how much it used.
using Run = std::function<double()>;

struct Peer {
    std::string name;
    double aim = 0; // what our time divided by the peer's should not pass; 0 where nothing is aimed at
    Run run;        // empty where this machine lacks the peer
};

// What a measure needs is made when it is prepared, and lives as long as the contest.
struct Contest {
    Run ours; // empty where this machine lacks what it takes
    std::vector<Peer> peers;
    // Asked after the last round: what is wrong with our result. Empty where it holds.
    std::function<std::string()> fault = [] { return std::string(); };
};

enum class Cores { One, All };
enum class Unit { Seconds, Pictures };

struct Measure {
    std::string name;
    std::function<Contest()> prepare;
    Cores cores = Cores::One;
    Unit unit = Unit::Seconds;
};

struct Group {
    std::string title;
    std::vector<Measure> measures;
};

// The compiler must take what is there as read, and as changed.
inline void Keep(void* memory) {
    asm volatile("" : : "g"(memory) : "memory");
}

template <class Work>
double Seconds(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    Keep(nullptr);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// A run of which all counts.
template <class Work>
Run Timed(Work work) {
    return [work] { return Seconds(work); };
}

} // namespace mirelle::bench
