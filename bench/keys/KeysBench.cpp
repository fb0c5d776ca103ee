// How fast texts arrive in another window, beside xdotool, each typed as fast as it can. Prints characters a
// second, from the first key to the moment when the window has read the last, and how much of the text
// arrived.
//
//   tests/support/with_display build/bench/bench/keys/keys_bench
#include "desktop/x11/X11Console.h"
#include "tests/desktop/x11/ConsoleProcess.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>

namespace {

using mirelle::test::ConsoleProcess;

constexpr int kRounds = 5;

struct Text {
    const char* name;
    std::string text;

    auto Characters() const {
        return std::ranges::count_if(text,
                                     [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
    }
};

std::string Repeated(const std::string& line, int times) {
    std::string text;
    for (int i = 0; i < times; ++i)
        text += line;
    return text;
}

struct Result {
    double perSecond = 0; // the best round's
    int exactRounds = 0;
};

Result Measure(const Text& text, ConsoleProcess& console, const std::function<void()>& type) {
    Result result;
    for (int round = 0; round < kRounds; ++round) {
        console.TakeRecord();
        const auto start = std::chrono::steady_clock::now();
        type();
        const std::string record = console.TakeRecord();
        const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
        result.exactRounds += record == text.text ? 1 : 0;
        result.perSecond = std::max(result.perSecond, double(text.Characters()) / seconds.count());
    }
    return result;
}

} // namespace

int main() {
    const Text texts[] = {
        {"letters and signs", Repeated("material.texture = \"C:\\\\Mats\\\\Brick_12.jpg\"\r", 500)},
        {"with rare characters", Repeated("materials.add \"Mur_été_ñandú_字_12\"\r", 500)},
    };
    ConsoleProcess console("Ruby Console");
    mirelle::X11Console desktop;
    desktop.AppActivate("Ruby Console");
    std::printf("%-22s %16s %10s %16s %10s\n", "text", "ours (char/s)", "exact", "xdotool (char/s)", "exact");
    for (const Text& text : texts) {
        const Result ours =
            Measure(text, console, [&] { desktop.CreateObject("WScript.Shell")->SendKeys(text.text); });
        const Result other = Measure(text, console, [&] {
            mirelle::test::RunProgram({"xdotool", "type", "--delay", "0", text.text});
        });
        std::printf("%-22s %16.0f %7d/%d %16.0f %7d/%d\n", text.name, ours.perSecond, ours.exactRounds,
                    kRounds, other.perSecond, other.exactRounds, kRounds);
        if (ours.exactRounds != kRounds) return 1;
    }
    return 0;
}
