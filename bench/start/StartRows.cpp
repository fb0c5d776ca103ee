// From starting the program to its painted splash, beside a Qt program with one empty window.
#include "bench/Rows.h"
#include "bench/start/FirstDrawing.h"
#include "tests/support/TemporaryFolder.h"

#include <cstdlib>
#include <memory>

namespace mirelle::bench {
namespace {

constexpr double kTimesTheEmptyWindow = 1.3;

struct Scene {
    FirstDrawing drawing;
    test::TemporaryFolder home;
};

Contest Prepare() {
    if (std::getenv("DISPLAY") == nullptr)
        return {.ours = {}, .peers = {{"an X display", kTimesTheEmptyWindow, {}}}};
    const auto scene = std::make_shared<Scene>();
    scene->home.MakeFolder("Support/Materials");
    return {.ours =
                [=] {
                    return scene->drawing.Of({MIRELLE_PROGRAM, "--home", scene->home.Path()});
                },
            .peers = {{"a Qt program's empty window", kTimesTheEmptyWindow,
                       [=] { return scene->drawing.Of({MIRELLE_EMPTY_WINDOW}); }}}};
}

} // namespace

Group StartRows() {
    return {"Start", {{"from exec to the painted splash", Prepare, Cores::All}}};
}

} // namespace mirelle::bench
