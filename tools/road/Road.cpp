#include "tools/road/Road.h"

#include "tools/road/Await.h"

#include <QImage>
#include <QString>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <utility>

namespace mirelle::road {
namespace {

// The list of files, by how its name begins: the rest tells what it does at the moment.
constexpr const char* kFiles = "Click to preview image file";
constexpr const char* kChart = "Click image to sample color to SketchUp Send palette to right";
constexpr const char* kSlot = "Enter or sample RGB Color value to send to SketchUp";
constexpr const char* kNames = "Materials Images";
constexpr const char* kFastSave = "Fast Save: Save material sample to current path";
constexpr const char* kTypes = "Select image file extension";

// Something of each: far enough apart that no panel covers all of them.
constexpr Place kProbes[] = {{40, 40, 1, 1}, {260, 200, 1, 1}, {400, 90, 1, 1}};

// After so many looks a row that is not told is taken to be where its neighbours say, and a click is made
// again.
constexpr int kPatientLooks = 30;

// Art_12.jpg is number 12 of Art.
std::string StemOf(const std::string& file) {
    return file.substr(0, file.find('_'));
}

int NumberOf(const std::string& file) {
    const std::size_t mark = file.find('_');
    return mark == std::string::npos ? 0 : std::atoi(file.c_str() + mark + 1);
}

} // namespace

Road::Road(Installation installation)
    : installation_(std::move(installation)), widgets_("Mirelle", installation_.widgetsOf()),
      program_(installation_.start) {
    EnterFolder("Art");
}

std::string Road::FileOf(const LibraryFile& file) const {
    return installation_.home + "/Support/Materials/" + file.folder + "/" + file.file;
}

std::string Road::PathOf(const LibraryFile& file) const {
    return installation_.pathOf(FileOf(file));
}

std::string Road::Name() const {
    // The panel's first field is the one in the list of names.
    for (const Widget& part : widgets_.In(widgets_.Await("panel", kNames)))
        if (part.role == "combo box") return FieldOf(part);
    throw std::runtime_error("the name has no list");
}

std::string Road::FieldOf(const Widget& list) const {
    for (const Widget& part : widgets_.In(list))
        if (part.role == "text") return widgets_.TextOf(part);
    throw std::runtime_error(list.name + " has no field");
}

void Road::Press(const std::string& button) {
    desk_.Click(widgets_.Await("push button", button).place);
}

void Road::Check(const std::string& box) {
    const Widget found = widgets_.Await("check box", box);
    desk_.Click({found.place.x, found.place.y, found.place.height, found.place.height});
    Await("the check in " + box, [&] { return widgets_.IsChecked(found); });
}

void Road::EnterFolder(const std::string& folder) {
    Press("Go to " + folder + " Materials");
    Row(kFiles, folder + "_1.jpg");
}

void Road::Paste(const std::string& pictureFile) {
    PutOnClipboard(pictureFile);
    widgets_.AwaitCopiedPicture();
    Press("Paste from clipboard");
    const QImage picture(QString::fromStdString(pictureFile));
    const Place canvas = widgets_.Await("canvas", "Sampling Canvas").place;
    Await("the pasted picture", [&] {
        return std::ranges::all_of(kProbes, [&](const Place& probe) {
            return desk_.ColourAt(canvas.x + probe.x, canvas.y + probe.y) ==
                   (picture.pixel(probe.x, probe.y) & 0xFFFFFF);
        });
    });
}

std::string Road::Drag(const Place& area) {
    const std::string before = Name();
    const Place canvas = widgets_.Await("canvas", "Sampling Canvas").place;
    const int left = canvas.x + area.x;
    const int top = canvas.y + area.y;
    desk_.MovePointer(left, top);
    desk_.PressButton();
    constexpr int kMoves = 8;
    for (int move = 1; move <= kMoves; ++move)
        desk_.MovePointer(left + area.width * move / kMoves, top + area.height * move / kMoves);
    desk_.ReleaseButton();
    Await("the sample's name", [&] { return Name() != before; });
    return Name();
}

void Road::ChooseType(const std::string& type) {
    // The accessibility bus names a list by its text.
    std::optional<Widget> found;
    Await("the list of types", [&] {
        found = widgets_.Find([](const Widget& widget) {
            return widget.role == "combo box" && (widget.name == kTypes || widget.name.starts_with("*."));
        });
        return found.has_value();
    });
    const Widget& list = *found;
    const int arrow = list.place.height;
    desk_.Click({list.place.x + list.place.width - arrow, list.place.y, arrow, arrow});
    desk_.Click(widgets_.Await("list item", type).place);
    Await(type, [&] { return FieldOf(list) == type; });
}

void Road::FastSave(const LibraryFile& saved) {
    // Once the pointer has been over it, it is named by the program's folder.
    std::optional<Widget> button;
    Await("the button to save", [&] {
        button = widgets_.Find([this](const Widget& widget) {
            return widget.role == "push button" &&
                   (widget.name == kFastSave || widget.name == installation_.pathOf(installation_.home));
        });
        return button.has_value();
    });
    desk_.Click(button->place);
    widgets_.Await("label", "Last Save: " + saved.file);
    Await(FileOf(saved), [&] { return std::filesystem::exists(FileOf(saved)); });
}

void Road::Select(const LibraryFile& file) {
    // A list that is filled anew between the press and the release of a click takes no notice of it.
    int looks = 0;
    Await("the choice of " + file.file, [&] {
        if (looks++ % kPatientLooks == 0) desk_.Click(Row(kFiles, file.file).place);
        return widgets_.Find("label", PathOf(file)).has_value(); // beneath the lists
    });
}

void Road::LineUp(const LibraryFile& file) {
    EnterFolder(file.folder);
    Select(file); // adds the row as well
}

std::string Road::SampleColour() {
    Press("Show Pixel Sampler frame");
    const Widget slot = widgets_.Await("text", kSlot);
    // While the frame finds its place, the chart lies somewhere else for a moment.
    int looks = 0;
    Await("the sampled colour", [&] {
        if (looks++ % kPatientLooks == 0) desk_.Click(widgets_.Await("graphic", kChart).place);
        return !widgets_.TextOf(slot).empty();
    });
    return widgets_.TextOf(slot);
}

void Road::SendMaterial() {
    Press("Send selected material to SketchUp; Sends SU supported images");
}

void Road::SendFolder() {
    Press("BatchSend: Send all images in directory to SketchUp; Sends SU supported images");
}

void Road::SendList() {
    Press("SuperBatchSend: Send all images in Super Batch List to SketchUp; Sends SU supported images");
}

void Road::SendColour() {
    Press("Click to Add SketchUp Color via Ruby Console");
}

void Road::ToggleSuperBatch() {
    const auto shown = [&] { return widgets_.Find("panel", "SuperBatch Send").has_value(); };
    const bool before = shown();
    Press("Show/Hide SuperBatch Image Send Frame");
    Await("the SuperBatch panel's change", [&] { return shown() != before; });
}

void Road::AwaitMessage(const std::string& text) {
    widgets_.Await("label", text);
    Press("OK");
    Await("the end of the message", [&] { return !widgets_.Find("label", text); });
}

void Road::Close() {
    desk_.CloseWindow("Mirelle");
    program_.AwaitEnd();
}

// Now and then the toolkit tells a row of a list as something without name or place until the list is filled
// anew, though the window shows it. The rows beside it, whose numbers count on, then tell where it lies.
Widget Road::Row(const std::string& list, const std::string& row) const {
    std::optional<Widget> found;
    int looks = 0;
    Await(row + " in the list", [&] {
        found.reset();
        const std::optional<Widget> rows = widgets_.Find(
            [&](const Widget& widget) { return widget.role == "list" && widget.name.starts_with(list); });
        if (!rows) return false;
        ++looks;
        for (Widget widget : widgets_.In(*rows)) {
            const bool exact = widget.name == row;
            if (!exact && (looks < kPatientLooks || StemOf(widget.name) != StemOf(row))) continue;
            widget.place.y += (NumberOf(row) - NumberOf(widget.name)) * widget.place.height;
            if (!rows->place.Holds(widget.place.MiddleX(), widget.place.MiddleY())) continue;
            found = widget;
            if (exact) break;
        }
        return found.has_value();
    });
    return *found;
}

} // namespace mirelle::road
