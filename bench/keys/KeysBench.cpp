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
#include <vector>

namespace {

using mirelle::test::ConsoleProcess;

constexpr int kRounds = 5;
constexpr int kSends = 21;

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

// One new material, as a send types it, while another window is in front: the milliseconds from the
// activation to the moment when the console has read the last key.
void MeasureOneSend(ConsoleProcess& console, mirelle::X11Console& desktop) {
    const std::string preamble =
        "model = Sketchup::active_model\rmodel.entities.count\rmaterials = model.materials\r";
    const std::string material =
        "material = materials.add \"Brick_12\"\r"
        "material.texture = \"C:\\\\Mirelle\\\\Support\\\\Materials\\\\Industrial\\\\"
        "Brick_12.jpg\"\r";
    ConsoleProcess other("Other");
    std::vector<double> times;
    for (int round = 0; round < kSends; ++round) {
        desktop.AppActivate("Other");
        console.TakeRecord();
        const auto start = std::chrono::steady_clock::now();
        desktop.AppActivate("Ruby Console");
        const auto shell = desktop.CreateObject("WScript.Shell");
        shell->SendKeys(preamble);
        shell->SendKeys(material);
        const bool exact = console.TakeRecord() == preamble + material;
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
        if (exact) times.push_back(time.count());
    }
    std::ranges::sort(times);
    std::printf("one material of %zu characters: %zu/%d exact", preamble.size() + material.size(),
                times.size(), kSends);
    if (!times.empty()) std::printf(", %.1f ms (worst %.1f)", times[times.size() / 2], times.back());
    std::printf("\n");
}

} // namespace

int main() {
    const Text texts[] = {
        {"letters and signs", Repeated("material.texture = \"C:\\\\Mats\\\\Brick_12.jpg\"\r", 500)},
        {"with rare characters", Repeated("materials.add \"Mur_été_ñandú_字_12\"\r", 500)},
    };
    ConsoleProcess console("Ruby Console");
    mirelle::X11Console desktop;
    MeasureOneSend(console, desktop); // first: xdotool leaves the window manager busy for long
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
