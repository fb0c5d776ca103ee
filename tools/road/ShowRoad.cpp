// show_road PROGRAM HOME PICTURE FOLDER: walks the whole road in the real program, beside a stand-in for
// SketchUp's Ruby Console, and leaves pictures of the screen in FOLDER. PICTURE is the grab that another
// program has copied. It runs on a virtual display with a window manager and a D-Bus session: tools/demo
// makes these.
#include "tools/road/Await.h"
#include "tools/road/Road.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>

namespace mirelle::road {
namespace {

constexpr Place kWindow{8, 32, 1100, 780};
constexpr Place kConsole{1130, 40, 500, 780};

class Show {
public:
    Show(const std::string& program, const std::string& home, std::string folder)
        : folder_(std::move(folder)), console_(folder_, RubyConsole("Ruby Console", kConsole)),
          road_(OwnProgram(program, home)) {
        road_.TheDesk().PlaceWindow("Mirelle", kWindow);
    }

    // Where the road ends early, a picture shows where.
    void Walk(const std::string& picture) {
        std::puts("The road, one picture a step:");
        try {
            WalkToTheEnd(picture);
        } catch (const std::exception&) {
            Shoot("stuck");
            throw;
        }
    }

private:
    void WalkToTheEnd(const std::string& picture) {
        road_.Check("Count"); // goes on behind the folder's highest number
        road_.Select({"Art", "Art_2.jpg"});
        road_.Paste(picture);
        Shoot("1-pasted");
        const std::string name = road_.Drag({120, 90, 300, 220});
        Shoot("2-cropped");
        const LibraryFile saved{"Art", name + ".jpg"};
        road_.FastSave(saved);
        road_.Select(saved);
        Shoot("3-saved");
        road_.Check("Sz");
        road_.SendMaterial();
        AwaitMaterials(1);
        Shoot("4-sent");

        road_.ToggleSuperBatch();
        road_.EnterFolder("Metal");
        road_.SendFolder();
        AwaitMaterials(3);
        Shoot("5-folder-sent");
        road_.Check("Single");
        road_.LineUp({"Bio", "Bio_1.jpg"});
        road_.LineUp({"Gradient", "Gradient_1.jpg"});
        road_.SendList();
        AwaitMaterials(5);
        road_.Window().Await("label", "Sent: 2");
        Shoot("6-list-sent");
        road_.ToggleSuperBatch();
        road_.SampleColour();
        road_.SendColour();
        console_.AwaitAnswer("Sketchup.active_model.entities.count", "1");
        console_.AwaitAnswer("Sketchup.active_model.entities.first.back_material.nil?", "false");
        Shoot("7-colour-sent");

        std::printf("The saved material:\n  %s\n", road_.FileOf(saved).c_str());
        Tell("The materials that the interpreter behind the console has now:",
             "Sketchup.active_model.materials.map { |m| [m.name, m.texture.filename, m.texture.size] }");
        Tell("and its faces, with their colours:",
             "Sketchup.active_model.entities.map { |f| [f.points, f.material.to_a] }");
    }

    void Shoot(const std::string& name) {
        const std::string file = folder_ + "/" + name + ".png";
        road_.TheDesk().TakePicture(file);
        std::printf("  %s\n", file.c_str());
    }

    void AwaitMaterials(int count) {
        console_.AwaitAnswer("Sketchup.active_model.materials.count { |m| m.texture&.size }",
                             std::to_string(count));
    }

    void Tell(const char* what, const std::string& expression) {
        std::printf("%s\n  %s\n", what, console_.Ask(expression).c_str());
    }

    std::string folder_;
    Console console_;
    Road road_;
};

} // namespace
} // namespace mirelle::road

int main(int count, char** arguments) {
    const QCoreApplication application(count, arguments);
    if (count != 5) {
        std::fputs("usage: show_road PROGRAM HOME PICTURE FOLDER\n", stderr);
        return 2;
    }
    try {
        mirelle::road::Show(arguments[1], arguments[2], arguments[4]).Walk(arguments[3]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "show_road: %s\n", error.what());
        return 1;
    }
}
