// traced_walk PROGRAM HOME PICTURE FILE FOLDER: walks through the program, which a tracer watches: the
// picture is pasted, cropped, saved and changed, FILE of the folder Art is sent to a console and so are the
// folder Metal, where a file of that name lies too, and a colour; opened.jpg is opened from the folder that
// the program was started in, and the manual is asked for by both its buttons, whose viewer leaves what it
// was given in FOLDER/viewed, a line each.
//
// It runs on a virtual display with a window manager and a D-Bus session.
#include "tools/road/Await.h"
#include "tools/road/Road.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>
#include <fstream>
#include <optional>

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

// A place on the canvas that no panel covers.
unsigned CanvasColour(Road& road) {
    const Place canvas = road.Window().Await("canvas", "Sampling Canvas").place;
    return road.TheDesk().ColourAt(canvas.x + 40, canvas.y + 40);
}

// Does what changes the canvas, and waits until it shows.
template <class Act>
void Change(Road& road, const char* what, const Act& act) {
    const unsigned before = CanvasColour(road);
    act();
    Await(what, [&] { return CanvasColour(road) != before; });
}

void SaveASample(Road& road, const std::string& picture) {
    road.Check("Count"); // goes on behind the highest number
    road.Select({"Art", "Art_1.jpg"});
    road.Paste(picture);
    const std::string name = road.Drag({120, 90, 300, 220});
    road.FastSave({"Art", name + ".jpg"});
}

void ApplyAnEffect(Road& road) {
    road.Press("Show Canvas Image FX");
    Change(road, "the negative", [&] { road.Press("Negate"); });
    road.Press("Show Canvas Image FX"); // and it goes again
}

void SendToTheConsole(Road& road, const Console& console, const std::string& file) {
    constexpr const char* kTextures = "Sketchup.active_model.materials.map { |m| m.texture&.filename }";
    const LibraryFile strange{"Art", file};
    road.Select(strange);
    road.SendMaterial();
    std::string sent = InQuotes(road.PathOf(strange));
    console.AwaitAnswer(kTextures, '[' + sent + ']');

    road.ToggleSuperBatch();
    road.EnterFolder("Metal");
    road.SendFolder();
    for (const std::string& name : {file, std::string("Metal_1.jpg")})
        sent += ',' + InQuotes(road.PathOf({"Metal", name}));
    console.AwaitAnswer(kTextures, '[' + sent + ']');
    road.ToggleSuperBatch();

    road.SampleColour();
    road.SendColour();
    console.AwaitAnswer("Sketchup.active_model.entities.map { |face| face.points.size }", "[4]");
}

void OpenAFile(Road& road) {
    Change(road, "the opened picture", [&] {
        road.Press("Open image file from Windows file dialog");
        // A dialog's list has rows of cells, a window's own lists have items.
        std::optional<Widget> file;
        Await("the file in the dialog", [&] {
            file = road.Window().Find([](const Widget& widget) { return widget.name == "opened.jpg"; });
            return file.has_value();
        });
        road.TheDesk().Click(file->place);
        road.Press("Open");
    });
}

void ReadTheManual(Road& road, const std::string& folder) {
    road.Press("View User Manual");
    const std::string viewed = folder + "/viewed";
    road.Press("Local");
    Await("the manual's viewer", [&] { return LinesOf(viewed) == 1; });
    road.Press("Web");
    Await("the address's viewer", [&] { return LinesOf(viewed) == 2; });
}

void Walk(Road& road, const Console& console, const std::string& picture, const std::string& file,
          const std::string& folder) {
    road.TheDesk().PlaceWindow("Mirelle", kWindow);
    SaveASample(road, picture);
    ApplyAnEffect(road);
    SendToTheConsole(road, console, file);
    OpenAFile(road);
    ReadTheManual(road, folder);
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
