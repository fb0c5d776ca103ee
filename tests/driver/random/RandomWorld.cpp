#include "tests/driver/random/RandomWorld.h"

#include "codecs/BmpWriter.h"
#include "codecs/cJPEG.h"
#include "tests/driver/Errors.h"
#include "tests/driver/random/CanvasRule.h"
#include "tests/driver/random/Invariants.h"
#include "tests/support/Patterns.h"

#include <array>
#include <filesystem>
#include <fstream>

namespace mirelle::driver {
namespace {

using test::Chart;
using test::ChartPicture;
namespace fs = std::filesystem;

constexpr const char* kMaterials = "C:\\Mirelle\\Support\\Materials";

struct FileRow {
    const char* path;
    enum Kind { Jpeg, Bmp, Gif, Text, Broken } kind;
    int width, height;
};
constexpr std::array kFiles = {
    FileRow{"C:\\Mirelle\\Support\\Materials\\Art_3.jpg", FileRow::Jpeg, 40, 30},
    FileRow{"C:\\Mirelle\\Support\\Materials\\Art_12.jpg", FileRow::Jpeg, 61, 17},
    FileRow{"C:\\Mirelle\\Support\\Materials\\brick.old.jpg", FileRow::Jpeg, 1, 1},
    FileRow{"C:\\Mirelle\\Support\\Materials\\Metal_25000.jpg", FileRow::Broken, 0, 0},
    FileRow{"C:\\Mirelle\\Support\\Materials\\noend", FileRow::Text, 0, 0},
    FileRow{"C:\\Mirelle\\Support\\Materials\\shot_4.bmp", FileRow::Bmp, 33, 70},
    FileRow{"C:\\Mirelle\\Support\\Materials\\Art\\Art_1.jpg", FileRow::Jpeg, 90, 45},
    FileRow{"C:\\Mirelle\\Support\\Materials\\Art\\Art_1E999.jpg", FileRow::Jpeg, 7, 9},
    FileRow{"C:\\Mirelle\\Support\\Materials\\Bio\\odd_&HFFFFFFFFF.jpg", FileRow::Jpeg, 12, 80},
    FileRow{"C:\\Mirelle\\Support\\Materials\\Misc\\empty_4b.gif", FileRow::Gif, 20, 20},
    FileRow{"C:\\Mirelle\\Support\\Materials\\Misc\\\u00fcber_7.jpg", FileRow::Jpeg, 25, 25},
    FileRow{"C:\\Mirelle\\Support\\Settings\\MaterialsSamplerPrefix.txt", FileRow::Text, 0, 0},
    FileRow{"D:\\Pictures\\wall.bmp", FileRow::Bmp, 50, 40},
    FileRow{"D:\\Pictures\\wall.jpeg", FileRow::Jpeg, 64, 64},
    FileRow{"D:\\notes.jpg", FileRow::Text, 0, 0},
};

std::vector<std::uint8_t> BytesOf(const FileRow& row, FileSystem& files, ImageEncoders& encoders) {
    const Bitmap bitmap = Chart(row.width, row.height, 9);
    switch (row.kind) {
    case FileRow::Bmp:
        return BmpFile(bitmap);
    case FileRow::Jpeg: {
        cJPEG jpeg;
        jpeg.SampleHDC(bitmap, row.width, row.height);
        jpeg.SaveFileJPG(row.path, files);
        return files.ReadFile(row.path);
    }
    case FileRow::Gif:
        encoders.Save(Picture(Chart(row.width, row.height, 9)), ImageFormat::Gif, row.path);
        return files.ReadFile(row.path);
    case FileRow::Broken:
        return {0xFF, 0xD8, 0xFF, 0xE0, 0, 16, 'J'};
    case FileRow::Text:
        break;
    }
    constexpr std::string_view kLines = "Own_\r\n\r\nOther_";
    return {kLines.begin(), kLines.end()};
}

// Both disks and all folders that files lie in.
std::string MakeFolders(const std::string& folder) {
    for (const char* name : {"C/Mirelle/Support/Materials/Art", "C/Mirelle/Support/Materials/Bio",
                             "C/Mirelle/Support/Materials/Misc", "C/Mirelle/Support/Settings", "D/Pictures"})
        fs::create_directories(fs::path(folder) / name);
    return folder;
}

} // namespace

RandomWorld::RandomWorld(const std::string& folder)
    : pictures_{{"dot.png", ChartPicture(1, 1, 1)},
                {"grab.png", ChartPicture(61, 43, 2)},
                {"strip.png", ChartPicture(130, 3, 3)},
                {"wide.png", ChartPicture(240, 150, 4)}},
      disk_(MakeFolders(folder)), files_(disk_), machine_("/", {}), named_(files_, machine_), loader_(files_),
      encoders_(files_), session_({named_, loader_, encoders_,
                                   [this](const std::string& name) {
                                       const auto found = pictures_.find(name);
                                       if (found == pictures_.end()) throw CommandError("no " + name);
                                       return found->second;
                                   }}),
      conversation_(session_), folder_(folder) {
    for (const FileRow& row : kFiles)
        disk_.WriteFile(row.path, BytesOf(row, disk_, encoders_));
    session_.desktop.screen.size = {400, 300}; // a small one, so that pictures of the form are small
    conversation_.Answer("start");
    conversation_.Answer("window normal 320 200");
    files_.savePlace = [this] { return SavePlace{Form().File5.Path(), Form().textProfileName.Text()}; };
    atFirst_.emplace(folder_);
}

RandomUser::Reach RandomWorld::Reach() const {
    RandomUser::Reach reach;
    for (const auto& [name, picture] : pictures_)
        reach.pictures.push_back(name);
    const std::string materials = kMaterials;
    reach.folders = {"C:\\",
                     "D:\\",
                     "D:\\Pictures",
                     materials,
                     materials + "\\Art",
                     materials + "\\Bio",
                     materials + "\\Misc"};
    reach.documents = {"C:\\none.jpg", "D:\\Pictures\\wall.bmp", "D:\\notes.jpg", materials + "\\Art_3.jpg"};
    return reach;
}

std::optional<std::string> RandomWorld::Do(const std::string& event) {
    const bool hasToShowCanvas = HasToShowCanvas(Form(), session_.desktop, event);
    // A smudger works for long: the user gives up after a few passes.
    if (event.find("cmdPointalism") != std::string::npos) conversation_.Answer("during pass 4 key esc");
    const std::string answer = conversation_.Answer(event).value_or("");
    if (!answer.starts_with("ok")) return "the answer is: " + answer;
    if (conversation_.Ended()) return "the session has ended";
    if (files_.strayPath) return "written outside of the library's folder: " + *files_.strayPath;
    return BrokenInvariant(Form(), hasToShowCanvas);
}

std::optional<std::string> RandomWorld::StrayFile() const {
    for (const std::string& path : atFirst_->ChangedSince()) {
        const std::size_t drive = path.find('/');
        if (drive == std::string::npos) return path;
        const std::string onDrive = path.substr(0, drive) + ':' + path.substr(drive);
        if (!files_.HasBeenIn(onDrive.substr(0, onDrive.rfind('/') + 1))) return path;
    }
    return {};
}

void RandomWorld::Forget() {
    for (const char* record : {"messages", "dialogs", "sent", "opened"})
        conversation_.Answer(record);
}

} // namespace mirelle::driver
