// mirelle_bench [--list] [--alone] [--seconds S] [--seed N] [--picture FILE] [FILTER]: how fast the program
// is, in one table, beside what people would otherwise use and beside what the machine allows.
//
// FILTER keeps the rows whose group or name holds that text, without regard to case. --list names the
// measures. --seconds is how long the rounds of a measure go on, at least a few rounds; 1 unless told
// otherwise. --alone runs our side without the peers, for a profiler. --seed makes another picture to measure
// on, --picture takes one of the user's own.
//
// The exit status tells whether everything could be run, and whether what came out was right: pictures, files
// and texts are compared with what they have to be. Starts, moves of the mouse and memory are only measured.
// How fast it was changes nothing about the status.
#include "bench/Photograph.h"
#include "bench/Rows.h"
#include "bench/Table.h"
#include "bench/Wishes.h"
#include "desktop/look/Look.h"
#include "desktop/pictures/QtImages.h"

#include <cstdio>
#include <string>

#include <QApplication>
#include <QImage>

namespace {

using namespace mirelle::bench;

// The groups in the table's order, with the measures that the filter keeps.
std::vector<Group> GroupsFor(const Wishes& wishes) {
    std::vector<Group> groups{JpegRows(),        KernelRows(),     PointRows(), ContrastRows(),
                              SmudgerRows(),     GradientRows(),   PasteRows(), CropRows(),
                              PhotographRows(),  FolderRows(),     StartRows(), MemoryRows(),
                              KernelClickRows(), PointClickRows(), KeysRows()};
    for (Group& group : groups) {
        std::erase_if(group.measures, [&](const Measure& measure) {
            return Lower(group.title + ' ' + measure.name).find(wishes.filter) == std::string::npos;
        });
    }
    std::erase_if(groups, [](const Group& group) { return group.measures.empty(); });
    return groups;
}

void PrintNames(const std::vector<Group>& groups) {
    for (const Group& group : groups) {
        for (const Measure& measure : group.measures)
            std::printf("%s: %s\n", group.title.c_str(), measure.name.c_str());
    }
}

// False where the user's own picture can't be read.
bool ChoosePicture(Wishes& wishes) {
    if (wishes.pictureFile.empty()) {
        MakePhotographsFrom(wishes.seed);
        wishes.manner.picture = "a picture made here, seed " + std::to_string(wishes.seed);
        return true;
    }
    const QImage image(QString::fromStdString(wishes.pictureFile));
    if (image.isNull()) return false;
    MakePhotographsFrom(mirelle::OpaqueBitmap(image));
    wishes.manner.picture = wishes.pictureFile;
    return true;
}

bool RunAll(const std::vector<Group>& groups, const Manner& manner) {
    Table table(manner);
    table.PrintHead();
    for (const Group& group : groups) {
        table.PrintTitle(group.title);
        for (const Measure& measure : group.measures)
            table.Run(measure);
    }
    table.PrintSum();
    return table.AllHold();
}

} // namespace

int main(int count, char** arguments) {
    std::optional<Wishes> wishes = WishesOf(count, arguments);
    if (!wishes) {
        std::fprintf(stderr, "mirelle_bench [--list] [--alone] [--seconds S] [--seed N] [--picture FILE] "
                             "[FILTER]\n");
        return 2;
    }
    const std::vector<Group> groups = GroupsFor(*wishes);
    if (groups.empty()) {
        std::fprintf(stderr, "No measure has \"%s\" in its name: see --list\n", wishes->filter.c_str());
        return 2;
    }
    if (wishes->list) {
        PrintNames(groups);
        return 0;
    }
    // The program's window is painted in memory: a screen has a pace of its own.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(count, arguments);
    if (!ChoosePicture(*wishes)) {
        std::fprintf(stderr, "%s can't be read as a picture\n", wishes->pictureFile.c_str());
        return 2;
    }
    mirelle::look::ApplyLook(application);
    return RunAll(groups, wishes->manner) ? 0 : 1;
}
