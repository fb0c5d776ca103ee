// traced_walk PROGRAM HOME PICTURE FILE FOLDER: walks through the program, which a tracer watches: the
// picture is pasted, cropped and saved, FILE of the folder Art is sent to a console, and the manual is asked
// for by both its buttons, whose viewer leaves what it was given in FOLDER/viewed, a line each.
//
// It runs on a virtual display with a window manager and a D-Bus session.
#include "tools/road/Await.h"
#include "tools/road/Road.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>
#include <fstream>

namespace mirelle::road {
namespace {

constexpr Place kWindow{8, 32, 1100, 780};
constexpr Place kConsole{1130, 40, 500, 780};

std::string InQuotes(const std::string& text) {
    return '"' + text + '"';
}

int LinesOf(const std::string& file) {
    std::ifstream lines(file);
    int count = 0;
    for (std::string line; std::getline(lines, line);)
        ++count;
    return count;
}

void Walk(Road& road, const Console& console, const std::string& picture, const std::string& file,
          const std::string& folder) {
    road.TheDesk().PlaceWindow("Mirelle", kWindow);
    road.Check("Count"); // goes on behind the highest number
    road.Select({"Art", "Art_1.jpg"});
    road.Paste(picture);
    const std::string name = road.Drag({120, 90, 300, 220});
    road.FastSave({"Art", name + ".jpg"});

    const LibraryFile strange{"Art", file};
    road.Select(strange);
    road.SendMaterial();
    console.AwaitAnswer("Sketchup.active_model.materials.map { |m| m.texture&.filename }",
                        "[" + InQuotes(road.PathOf(strange)) + "]");

    road.Press("View User Manual");
    const std::string viewed = folder + "/viewed";
    road.Press("Local");
    Await("the manual's viewer", [&] { return LinesOf(viewed) == 1; });
    road.Press("Web");
    Await("the address's viewer", [&] { return LinesOf(viewed) == 2; });
}

} // namespace
} // namespace mirelle::road

int main(int count, char** arguments) {
    using namespace mirelle::road;
    const QCoreApplication application(count, arguments);
    if (count != 6) {
        std::fputs("usage: traced_walk PROGRAM HOME PICTURE FILE FOLDER\n", stderr);
        return 2;
    }
    const std::string folder = arguments[5];
    try {
        const Console console(folder, RubyConsole("Ruby Console", kConsole));
        Road road(OwnProgram(arguments[1], arguments[2]));
        try {
            Walk(road, console, arguments[3], arguments[4], folder);
        } catch (const std::exception&) {
            road.TheDesk().TakePicture(folder + "/stuck.png");
            throw;
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "traced_walk: %s\n", error.what());
        return 1;
    }
}
