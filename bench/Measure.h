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
    // Asked after the last round: what is wrong with our result. Empty where it holds. It makes itself what
    // it compares with: the peers may not have run. A measure without it tells how long, and nothing more.
    std::function<std::string()> fault = [] { return std::string(); };
};

enum class Cores { One, All };
enum class Unit { Seconds, Pictures };

// Memory as a run meets it: fresh from the system, which clears each page of it, or used before.
enum class Memory { Fresh, Kept };

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

// A measure on all cores, and the same on one: where we may use both cores, a peer that has one thread says
// less.
inline void AddOnAllCoresAndOne(Group& group, const std::string& name,
                                const std::function<Contest(Cores)>& prepare) {
    group.measures.push_back({name + ", all cores", [=] { return prepare(Cores::All); }, Cores::All});
    group.measures.push_back({name + ", one core", [=] { return prepare(Cores::One); }, Cores::One});
}

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
