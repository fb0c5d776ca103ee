// mirelle_bench [--list] [--alone] [--seconds S] [FILTER]: how fast the program is, in one table, beside what
// people would otherwise use and beside what the machine allows.
//
// FILTER keeps the rows whose group or name holds that text, without regard to case. --list names the
// measures. --seconds is how long the rounds of a measure go on, at least a few rounds; 1 unless told
// otherwise. --alone runs our side without the peers, for a profiler.
//
// The exit status tells whether every result was right. How fast it was changes nothing about that.
#include "bench/Rows.h"
#include "bench/Table.h"
#include "desktop/look/Look.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>
#include <string>

#include <QApplication>

namespace {

using namespace mirelle::bench;

struct Wishes {
    bool list = false;
    Manner manner;
    std::string filter;
};

std::string Lower(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

Wishes WishesOf(int count, char** arguments) {
    Wishes wishes;
    for (int i = 1; i < count; ++i) {
        if (std::strcmp(arguments[i], "--list") == 0)
            wishes.list = true;
        else if (std::strcmp(arguments[i], "--seconds") == 0 && i + 1 < count)
            wishes.manner.seconds = std::stod(arguments[++i]);
        else if (std::strcmp(arguments[i], "--alone") == 0)
            wishes.manner.alone = true;
        else
            wishes.filter = Lower(arguments[i]);
    }
    return wishes;
}

// The groups in the table's order, with the measures that the filter keeps.
std::vector<Group> GroupsFor(const Wishes& wishes) {
    std::vector<Group> groups{JpegRows(),        KernelRows(),   PointRows(), ContrastRows(),
                              SmudgerRows(),     GradientRows(), PasteRows(), CropRows(),
                              PhotographRows(),  FolderRows(),   StartRows(), MemoryRows(),
                              EffectClickRows(), KeysRows()};
    for (Group& group : groups) {
        std::erase_if(group.measures, [&](const Measure& measure) {
            return Lower(group.title + ' ' + measure.name).find(wishes.filter) == std::string::npos;
        });
    }
    std::erase_if(groups, [](const Group& group) { return group.measures.empty(); });
    return groups;
}

} // namespace

int main(int count, char** arguments) {
    const Wishes wishes = WishesOf(count, arguments);
    const std::vector<Group> groups = GroupsFor(wishes);
    if (wishes.list) {
        for (const Group& group : groups) {
            for (const Measure& measure : group.measures)
                std::printf("%s: %s\n", group.title.c_str(), measure.name.c_str());
        }
        return 0;
    }
    // The program's window is painted in memory: a screen has a pace of its own.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(count, arguments);
    mirelle::look::ApplyLook(application);

    Table table(wishes.manner);
    table.PrintHead();
    for (const Group& group : groups) {
        table.PrintTitle(group.title);
        for (const Measure& measure : group.measures)
            table.Run(measure);
    }
    table.PrintSum();
    return table.AllHold() ? 0 : 1;
}
