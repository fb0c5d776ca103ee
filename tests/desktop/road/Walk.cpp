#include "tests/desktop/road/Walk.h"

#include "tests/desktop/road/SavedFiles.h"

#include <gtest/gtest.h>

#include <exception>

namespace mirelle::test {
namespace {

using road::LibraryFile;
using road::Place;

constexpr Place kSample{60, 80, 180, 120};
constexpr const char* kSampleName = "Art_3";
const LibraryFile kSaved{"Art", "Art_3.jpg"};

constexpr const char* kAllTypes =
    "Toggle: Load all file extensions supported by SketchUp 2016 texture-import; Load "
    "defaults previewable";
constexpr const char* kMaterials =
    "Sketchup.active_model.materials.map { |m| [m.name, m.texture&.filename, m.texture&.size] }";
constexpr const char* kFaces =
    "Sketchup.active_model.entities.map { |f| [f.points, f.material&.to_a, f.back_material&.to_a] }";

// As the interpreter answers: a text in JSON.
std::string Json(const std::string& text) {
    std::string quoted = "\"";
    for (const char each : text) {
        if (each == '"' || each == '\\') quoted += '\\';
        quoted += each;
    }
    return quoted + '"';
}

std::string ListOf(const std::vector<std::string>& items) {
    std::string list;
    for (const std::string& item : items)
        list += (list.empty() ? "" : ",") + item;
    return '[' + list + ']';
}

// As the path stands in a line of Ruby.
std::string Escaped(const std::string& path) {
    std::string escaped;
    for (const char each : path)
        escaped += each == '\\' ? "\\\\" : std::string(1, each);
    return escaped;
}

// The lines that put a sized material into SketchUp.
std::vector<std::string> MaterialLines(const std::string& name, const std::string& path) {
    return {"model = Sketchup::active_model",
            "model.entities.count",
            "materials = model.materials",
            "material = materials.add \"" + name + '"',
            "material.texture = \"" + Escaped(path) + '"',
            "material.texture.size=5"};
}

std::vector<std::string> ColourLines(const std::string& colour) {
    return {"model = Sketchup::active_model",
            "model.entities.count",
            "pt1 = [1,1,0]",
            "pt2 = [2,1,0]",
            "pt3 = [2,2,0]",
            "pt4 = [1,2,0]",
            "entities = model.entities",
            "new_face = entities.add_face pt1, pt2, pt3, pt4",
            "new_face.material = Sketchup::Color.new " + colour,
            "new_face.back_material = " + colour};
}

} // namespace

void Walk::Crop(const std::string& pictureFile) {
    road_.Check("Count"); // goes on behind the folder's highest number
    road_.Select({"Art", "Art_2.jpg"});
    road_.Paste(pictureFile);
    ASSERT_EQ(road_.Drag(kSample), kSampleName);
}

void Walk::SaveInEveryForm(const std::string& pictureFile) {
    const std::string pixels = PixelsOf(pictureFile, kSample);
    road_.Press(kAllTypes);
    for (const char* ending : {"png", "tif", "bmp", "gif"}) {
        const LibraryFile file{"Art", std::string(kSampleName) + '.' + ending};
        road_.ChooseType(std::string("*.") + ending);
        road_.FastSave(file);
        EXPECT_EQ(FormatOf(road_.FileOf(file)), ending);
        const double allowed = std::string(ending) == "gif" ? 12 : 0; // of 256 colours at most
        EXPECT_LE(MeanDifference(PixelsOf(road_.FileOf(file)), pixels), allowed) << ending;
    }
    road_.ChooseType("*.jpg");
    road_.FastSave(kSaved);
    saved_ = true;
    EXPECT_EQ(BytesOf(road_.FileOf(kSaved)), EncodedHere(pictureFile, kSample));
}

void Walk::SaveAndSend() {
    if (!saved_) road_.FastSave(kSaved);
    road_.Select(kSaved);
    road_.Check("Sz");
    road_.SendMaterial();
    Sent(kSaved);
    AwaitMaterials();
}

void Walk::SendFolderAndList() {
    road_.ToggleSuperBatch();
    road_.EnterFolder("Metal");
    road_.SendFolder();
    Sent({"Metal", "Metal_1.jpg"});
    Sent({"Metal", "Metal_2.jpg"});
    AwaitMaterials();

    road_.Check("Single");
    road_.LineUp({"Bio", "Bio_1.jpg"});
    road_.LineUp({"Fractal", "Fractal_2.jpg"});
    road_.SendList();
    Sent({"Bio", "Bio_1.jpg"});
    Sent({"Fractal", "Fractal_2.jpg"});
    AwaitMaterials();
    road_.Window().Await("label", "Sent: 2");
    road_.ToggleSuperBatch();
}

void Walk::SendColour() {
    const std::string colour = road_.SampleColour();
    road_.SendColour();
    console_.AwaitAnswer(kFaces, "[[[[1,1,0],[2,1,0],[2,2,0],[1,2,0]],[" + colour + "],[" + colour + "]]]");
    for (const std::string& line : ColourLines(colour))
        lines_.push_back(Json(line));
}

std::string Walk::Lines() const {
    return ListOf(lines_);
}

void Walk::Sent(const LibraryFile& file) {
    const std::string name = file.file.substr(0, file.file.size() - 4);
    materials_.push_back("[" + Json(name) + "," + Json(road_.PathOf(file)) + ",5]");
    for (const std::string& line : MaterialLines(name, road_.PathOf(file)))
        lines_.push_back(Json(line));
}

void Walk::AwaitMaterials() const {
    console_.AwaitAnswer(kMaterials, ListOf(materials_));
}

void WalkOrTell(road::Road& road, const std::function<void()>& steps) {
    try {
        steps();
    } catch (const std::exception& error) {
        const std::string picture = testing::TempDir() + "mirelle-road-stuck.png";
        road.TheDesk().TakePicture(picture);
        ADD_FAILURE() << error.what() << ": see " << picture;
    }
}

} // namespace mirelle::test
