// Opening a folder of 100,000 files, up to the painted window, beside plainly reading and sorting its names;
// and a click on a file in it beside one in a folder of ten.
#include "bench/library/LargeFolder.h"
#include "bench/Rows.h"
#include "bench/window/WindowedProgram.h"

#include <algorithm>
#include <memory>

#include <dirent.h>

namespace mirelle::bench {
namespace {

constexpr double kTimesTheReading = 2;
constexpr double kAsInASmallFolder = 1.3;

struct Scene : WindowedProgram {
    Scene() { FillLibrary(Home()); }
    std::string Art() const { return Library() + "/Art"; }
    std::string Metal() const { return Library() + "/Metal"; }
};

void ReadAndSort(const std::string& folder) {
    std::vector<std::string> names;
    DIR* open = ::opendir(folder.c_str());
    while (const dirent* entry = ::readdir(open)) {
        if (entry->d_type == DT_REG) names.emplace_back(entry->d_name);
    }
    ::closedir(open);
    std::ranges::sort(names);
    Keep(names.data());
}

struct Checks {
    int count = kUnchecked;
    int append = kUnchecked;
};

double Open(Scene& scene, const Checks& checks) {
    FrmPicX& form = scene.form;
    form.Dir5.SetPath(scene.Library());
    form.List2.Clear();
    form.ckGetCount.Value = checks.count;
    form.ckAppend.Value = checks.append;
    PaintAll();
    return Seconds([&] {
        form.Dir5.SetPath(scene.Art());
        PaintAll();
    });
}

Contest OpenFolder(const Checks& checks, double aim) {
    const auto scene = std::make_shared<Scene>();
    return {.ours = [=] { return Open(*scene, checks); },
            .peers = {{"reading and sorting its names", aim, Timed([scene] { ReadAndSort(scene->Art()); })}},
            .fault = [scene] { return scene->form.File5.ListCount() == kFiles ? "" : "files are missing"; }};
}

// Clicks on one row after the other, up to the painted window.
Run Clicks(std::shared_ptr<Scene> scene, const std::string& folder) {
    const auto row = std::make_shared<int>(0);
    return [=] {
        FrmPicX& form = scene->form;
        form.Dir5.SetPath(folder);
        PaintAll();
        *row = (*row + 7919) % form.File5.ListCount();
        return Seconds([&] {
            form.File5.SetListIndex(*row);
            PaintAll();
        });
    };
}

Contest ClickRow() {
    const auto large = std::make_shared<Scene>();
    const auto small = std::make_shared<Scene>();
    return {.ours = Clicks(large, large->Art()),
            .peers = {{"a click in a folder of 10", kAsInASmallFolder, Clicks(small, small->Metal())}}};
}

} // namespace

Group FolderRows() {
    return {
        "A folder of 100,000 files",
        {{"opening it", [] { return OpenFolder({}, kTimesTheReading); }, Cores::All},
         {"opening it, with the counter", [] { return OpenFolder({.count = kChecked}, 0); }, Cores::All},
         {"opening it, gathering all names", [] { return OpenFolder({.append = kChecked}, 0); }, Cores::All},
         {"a click on a file of 64 x 64 in it", ClickRow, Cores::All}}};
}

} // namespace mirelle::bench
