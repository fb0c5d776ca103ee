// How fast texts arrive in another window, from the first key to the moment when that window has read the
// last, beside xdotool, each typed as fast as it can.
#include "bench/Rows.h"
#include "desktop/x11/X11Console.h"
#include "tests/desktop/x11/ConsoleProcess.h"

#include <cstdlib>
#include <memory>

namespace mirelle::bench {
namespace {

using test::ConsoleProcess;
using test::RunProgram;

constexpr const char* kPeer = "xdotool";
constexpr int kLines = 500;

const std::string kOneMaterial =
    "model = Sketchup::active_model\rmodel.entities.count\rmaterials = model.materials\r"
    "material = materials.add \"Brick_12\"\r"
    "material.texture = \"C:\\\\Mirelle\\\\Support\\\\Materials\\\\Industrial\\\\Brick_12.jpg\"\r";

std::string Repeated(const std::string& line) {
    std::string text;
    for (int i = 0; i < kLines; ++i)
        text += line;
    return text;
}

struct Scene {
    ConsoleProcess console{"Ruby Console"};
    X11Console desktop;
    int wrong = 0; // rounds in which something else than the text arrived
};

// What the window has read counts, and not what was sent.
double Typed(Scene& scene, const std::string& text, const std::function<void()>& type) {
    scene.console.TakeRecord();
    std::string record;
    const double seconds = Seconds([&] {
        type();
        record = scene.console.TakeRecord();
    });
    scene.wrong += record == text ? 0 : 1;
    return seconds;
}

bool HasDisplay() {
    return std::getenv("DISPLAY") != nullptr;
}

Contest WithoutDisplay() {
    return {.ours = {}, .peers = {{"an X display", 1, {}}}};
}

std::string FaultOf(const Scene& scene) {
    return scene.wrong == 0 ? "" : "another text arrived, in rounds: " + std::to_string(scene.wrong);
}

Contest TypeText(const std::string& text) {
    if (!HasDisplay()) return WithoutDisplay();
    const auto scene = std::make_shared<Scene>();
    const auto theirs = std::make_shared<int>(0);
    return {.ours =
                [=] {
                    scene->desktop.AppActivate("Ruby Console");
                    return Typed(*scene, text,
                                 [&] { scene->desktop.CreateObject("WScript.Shell")->SendKeys(text); });
                },
            .peers = {{kPeer, 1,
                       [=] {
                           const int before = scene->wrong;
                           const double seconds = Typed(*scene, text, [&] {
                               RunProgram({kPeer, "type", "--delay", "0", text});
                           });
                           scene->wrong = before; // what it gets wrong is its own
                           return seconds;
                       }}},
            .fault = [=] { return FaultOf(*scene); }};
}

// A new material, as a send types it, from the activation of the window on while another is in front.
Contest SendMaterial() {
    if (!HasDisplay()) return WithoutDisplay();
    const auto scene = std::make_shared<Scene>();
    const auto other = std::make_shared<ConsoleProcess>("Other");
    const auto activateOther = [=] {
        scene->desktop.AppActivate("Other");
        other->TakeRecord();
    };
    return {.ours =
                [=] {
                    activateOther();
                    return Typed(*scene, kOneMaterial, [&] {
                        scene->desktop.AppActivate("Ruby Console");
                        scene->desktop.CreateObject("WScript.Shell")->SendKeys(kOneMaterial);
                    });
                },
            .peers = {{kPeer, 1,
                       [=] {
                           activateOther();
                           const int before = scene->wrong;
                           const double seconds = Typed(*scene, kOneMaterial, [&] {
                               RunProgram({kPeer, "search", "--name", "^Ruby Console$", "windowactivate",
                                           "--sync", "type", "--delay", "0", kOneMaterial});
                           });
                           scene->wrong = before;
                           return seconds;
                       }}},
            .fault = [=] { return FaultOf(*scene); }};
}

} // namespace

Group KeysRows() {
    const std::string plain = Repeated("material.texture = \"C:\\\\Mats\\\\Brick_12.jpg\"\r");
    const std::string rare = Repeated("materials.add \"Mur_été_ñandú_字_12\"\r");
    return {"Keys into another window",
            {{"one material, its window activated", SendMaterial, Cores::All},
             {"500 lines of letters and signs", [=] { return TypeText(plain); }, Cores::All},
             {"500 lines with rare characters", [=] { return TypeText(rare); }, Cores::All}}};
}

} // namespace mirelle::bench
