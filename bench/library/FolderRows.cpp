// Opening a folder of 100,000 files, up to the painted window, beside plainly reading and sorting its names;
// and a click on a file in it beside one in a folder of ten.
#include "bench/library/LargeFolder.h"
#include "bench/Rows.h"
#include "bench/SameColours.h"
#include "bench/window/WindowedProgram.h"
#include "desktop/pictures/JpegReader.h"

#include <algorithm>
#include <memory>

#include <dirent.h>

namespace mirelle::bench {
namespace {

constexpr double kTimesTheReading = 2;
constexpr double kAsInASmallFolder = 1.3;

struct Scene : WindowedProgram {
    std::string Art() const { return Library() + "/Art"; }
    std::string Metal() const { return Library() + "/Metal"; }
};

std::vector<std::string> ReadAndSort(const std::string& folder) {
    std::vector<std::string> names;
    DIR* open = ::opendir(folder.c_str());
    while (const dirent* entry = ::readdir(open)) {
        if (entry->d_type == DT_REG) names.emplace_back(entry->d_name);
    }
    ::closedir(open);
    std::ranges::sort(names);
    Keep(names.data());
    return names;
}

// The names differ in their numbers alone: without regard to case they have the same order.
std::string FaultOf(const Scene& scene) {
    const std::vector<std::string> names = ReadAndSort(scene.Art());
    const FileListBox& list = scene.form.File5;
    if (list.ListCount() != kFiles || names.size() != kFiles) return "files are missing";
    for (int row = 0; row < kFiles; ++row) {
        if (list.List(row) != names[static_cast<std::size_t>(row)]) return "the list has another order";
    }
    return "";
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
    FillArt(scene->Home());
    return {.ours = [=] { return Open(*scene, checks); },
            .peers = {{"reading and sorting its names", aim, Timed([scene] { ReadAndSort(scene->Art()); })}},
            .fault = [scene] { return FaultOf(*scene); }};
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

std::string FaultOfClick(const Scene& scene) {
    const std::vector<std::uint8_t> file = SmallPictureFile();
    const FrmPicX& form = scene.form;
    const std::string path = form.File5.Path() + '/' + form.File5.FileName();
    const bool holds = form.CurrentImagePath.Text() == path && !form.File5.FileName().empty() &&
                       SameColours(form.PicImage.Picture().Pixels(), ReadJpeg(file));
    return holds ? "" : "the canvas is not the file that was clicked";
}

Contest ClickRow() {
    const auto large = std::make_shared<Scene>();
    const auto small = std::make_shared<Scene>();
    FillArt(large->Home());
    FillMetal(small->Home());
    return {.ours = Clicks(large, large->Art()),
            .peers = {{"a click in a folder of 10", kAsInASmallFolder, Clicks(small, small->Metal())}},
            .fault = [large] { return FaultOfClick(*large); }};
}

} // namespace

Group FolderRows() {
    Group group{"A folder of 100,000 files", {}};
    AddOnAllCoresAndOne(group, "opening it", [](Cores) { return OpenFolder({}, kTimesTheReading); });
    const auto add = [&](const std::string& name, const std::function<Contest()>& prepare) {
        group.measures.push_back({name, prepare, Cores::All});
    };
    add("opening it, with the counter", [] { return OpenFolder({.count = kChecked}, 0); });
    add("opening it, gathering all names", [] { return OpenFolder({.append = kChecked}, 0); });
    add("a click on a file of 64 x 64 in it", ClickRow);
    return group;
}

} // namespace mirelle::bench
