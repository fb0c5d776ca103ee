#include "bench/Table.h"

#include "bench/peers/Peers.h"
#include "bench/Rounds.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <exception>
#include <fstream>

#include <unistd.h>

namespace mirelle::bench {
namespace {

std::string Processor() {
    std::ifstream table("/proc/cpuinfo");
    for (std::string line; std::getline(table, line);) {
        if (line.starts_with("model name")) return line.substr(line.find(':') + 2);
    }
    return "unknown processor";
}

std::string Now() {
    const std::time_t now = std::time(nullptr);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", std::localtime(&now));
    return text.data();
}

std::string PicturesText(double pictures) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.2f pict.", pictures);
    return text.data();
}

// Three digits that count, in milliseconds or microseconds.
std::string TimeText(double seconds) {
    const bool small = seconds < 1e-4;
    const double value = seconds * (small ? 1e6 : 1e3);
    const int digits = value < 10 ? 2 : value < 100 ? 1 : 0;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.*f %s", digits, value, small ? "us" : "ms");
    return text.data();
}

std::string RatioText(double ratio) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.*f", ratio < 0.1 ? 3 : 2, ratio);
    return text.data();
}

std::string AmountText(double amount, Unit unit) {
    return unit == Unit::Seconds ? TimeText(amount) : PicturesText(amount);
}

void PrintRow(const std::string& measure, const std::string& ours, const std::string& peer,
              const std::string& theirs, const std::string& ratio, const std::string& aim,
              const std::string& verdict) {
    std::printf("%-44s %10s  %-34s %10s %7s %6s  %s\n", measure.c_str(), ours.c_str(), peer.c_str(),
                theirs.c_str(), ratio.c_str(), aim.c_str(), verdict.c_str());
    std::fflush(stdout);
}

} // namespace

void Table::PrintHead() const {
    std::printf("%s, %s, %ld cores, GCC %s\n", Now().c_str(), Processor().c_str(),
                ::sysconf(_SC_NPROCESSORS_ONLN), __VERSION__);
    for (const std::string& version : PeerVersions())
        std::printf("beside: %s\n", version.c_str());
    std::printf("on: %s\n", manner_.picture.c_str());
    std::printf(
        "Ours and what stands beside it take turns. The least wall time of each counts, and the ratio is "
        "that of the least times.\n"
        "All threads of the program are kept on one core, but where a row says all cores, and for clicks in "
        "a folder, starts, memory and keys.\n\n");
    PrintRow("measure", "ours", "beside", "its time", "ratio", "aim", "");
}

void Table::PrintTitle(const std::string& title) const {
    std::printf("\n%s\n", title.c_str());
}

// Whatever goes wrong is a fault of its row: the others still come.
void Table::Run(const Measure& measure) {
    try {
        const Contest contest = measure.prepare();
        RunPrepared(measure, contest);
        if (contest.ours) PrintFault(contest.fault());
    } catch (const std::exception& error) {
        PrintRow(measure.name, "-", "", "", "", "", "");
        PrintFault(error.what());
    }
}

void Table::RunPrepared(const Measure& measure, const Contest& contest) {
    if (manner_.alone) {
        const Contest alone{.ours = contest.ours, .peers = {}};
        const Times times = contest.ours ? RunRounds(alone, measure.cores, manner_.seconds) : Times{};
        const std::string ours = contest.ours ? AmountText(times.ours, measure.unit) : "-";
        PrintRow(measure.name, ours, "", "", "", "", contest.ours ? "" : "not on this machine");
        return;
    }
    const Times times = contest.ours ? RunRounds(contest, measure.cores, manner_.seconds) : Times{};
    for (std::size_t i = 0; i < contest.peers.size(); ++i) {
        const Peer& peer = contest.peers[i];
        const std::string aim = peer.aim > 0 ? RatioText(peer.aim) : "";
        if (!contest.ours || !peer.run) {
            ++missing_;
            const std::string ours = contest.ours ? AmountText(times.ours, measure.unit) : "-";
            PrintRow(measure.name, ours, peer.name, "-", "-", aim, "not on this machine");
            continue;
        }
        const double ratio = times.ours / times.peers[i];
        const bool met = ratio <= peer.aim;
        if (peer.aim > 0) {
            ++aims_;
            met_ += met ? 1 : 0;
        }
        PrintRow(measure.name, AmountText(times.ours, measure.unit), peer.name,
                 AmountText(times.peers[i], measure.unit), RatioText(ratio), aim,
                 peer.aim > 0 ? met ? "met" : "MISSED" : "");
    }
}

void Table::PrintFault(const std::string& fault) {
    if (fault.empty()) return;
    ++faults_;
    std::printf("    FAULT: %s\n", fault.c_str());
}

void Table::PrintSum() const {
    if (manner_.alone && faults_ == 0) return;
    std::printf("\n%d of %d aims met", met_, aims_);
    if (missing_ > 0) std::printf("; %d rows lack their peer on this machine", missing_);
    if (faults_ > 0) std::printf("; %d FAULTS", faults_);
    std::printf(".\n");
}

} // namespace mirelle::bench
