#include "tests/desktop/screens/Scenes.h"

#include "desktop/canvas/SamplingCanvas.h"
#include "tests/desktop/Mouse.h"

#include <array>

namespace mirelle::test {
namespace {

constexpr int kArt = 0;
constexpr int kArchitecture = 7;

void EmptyCanvas(Stage&) {}

void Library(Stage& stage) {
    stage.Form().cmdMatDirs(kArchitecture).UserClick();
    stage.Form().File5.Selected(1) = true;
}

void Pasted(Stage& stage) {
    Library(stage);
    stage.GrabSomething();
    stage.Form().Command5.UserClick();
}

void Cropping(Stage& stage) {
    Pasted(stage);
    stage.Settle();
    Mouse mouse(stage.Window().Canvas());
    mouse.Press({140, 120});
    for (const QPoint pixel : {QPoint(200, 160), QPoint(300, 240), QPoint(420, 330)})
        mouse.Move(pixel);
}

void Cropped(Stage& stage) {
    Cropping(stage);
    Mouse(stage.Window().Canvas()).Release({420, 330});
}

void ImageFX(Stage& stage) {
    Cropped(stage);
    stage.Form().cmdColorDialog(2).UserClick();
}

void GradientFX(Stage& stage) {
    Cropped(stage);
    stage.Form().cmdColorDialog(3).UserClick();
}

void SuperBatch(Stage& stage) {
    Cropped(stage);
    stage.Form().Command14.UserClick();
    for (const char* row : {"Architecture\\Arch_1.jpg", "Architecture\\Arch_2.jpg", "Metal\\Metal_1.jpg",
                            "Industrial\\Industrial_2.jpg", "Graffiti\\Graffiti_1.jpg"})
        stage.Form().List2.AddItem(std::string(kMaterials) + row);
    stage.Form().List2.SetListIndex(1);
}

void FullPalette(Stage& stage) {
    Cropped(stage);
    FrmPicX& form = stage.Form();
    form.cmdColorPick.UserClick();
    for (int slot = 0; slot < form.Text2x.Count(); ++slot) {
        form.Picture2.MouseMove(
            {0, 0, static_cast<float>(12 + slot * 22), static_cast<float>(20 + slot * 15)});
        form.Picture2.MouseDown(
            {1, 0, static_cast<float>(12 + slot * 22), static_cast<float>(20 + slot * 15)});
        form.TextLayer(slot).Text = std::to_string(slot + 10);
    }
}

void RightSideHidden(Stage& stage) {
    Cropped(stage);
    stage.Form().cmdHideFrame(0).UserClick();
}

void AllHidden(Stage& stage) {
    Cropped(stage);
    stage.Form().cmdHideFrame(1).UserClick();
}

void LongNames(Stage& stage) {
    const std::string folder =
        std::string(kMaterials) + "Art\\A folder of the customer whose name is longer than any list is wide";
    stage.AddFiles(folder, 9, "Weathered sandstone facade with ivy, seen from the north-west corner_");
    stage.Form().Dir5.SetPath(folder);
    stage.Form().File5.Selected(4) = true;
    stage.Form().Command3.UserClick();
}

void ThousandFiles(Stage& stage) {
    const std::string folder = std::string(kMaterials) + "Misc\\Thousand";
    stage.AddFiles(folder, 1000, "Material_");
    stage.Form().Dir5.SetPath(folder);
    stage.Form().File5.Selected(700) = true;
}

void Working(Stage& stage) {
    Cropped(stage);
    stage.Window().ShowPause(1);
}

void Maximised(Stage& stage) {
    Cropped(stage);
    stage.Form().cmdFullScreen.UserClick();
    stage.Settle();
}

void MaximisedPalette(Stage& stage) {
    Maximised(stage);
    stage.Form().cmdColorPick.UserClick();
}

void MaximisedEffects(Stage& stage) {
    Maximised(stage);
    stage.Form().cmdColorDialog(2).UserClick();
}

void MaximisedSuperBatch(Stage& stage) {
    SuperBatch(stage);
    stage.Form().cmdFullScreen.UserClick();
}

void Splash(Stage& stage) {
    stage.TheSplashWindow();
    stage.TheSplash().Timer1.Enabled = false;
    stage.TheSplash().Load();
    stage.TheSplash().lblDate.Caption = "21 November 2026";
}

void Manual(Stage& stage) {
    stage.TheManual();
    stage.Form().cmdGetCorvane(0).UserClick();
}

constexpr std::array kScenes = {
    Scene{"empty", EmptyCanvas},
    Scene{"library", Library},
    Scene{"pasted", Pasted},
    Scene{"cropping", Cropping},
    Scene{"cropped", Cropped},
    Scene{"image-fx", ImageFX},
    Scene{"gradient-fx", GradientFX},
    Scene{"superbatch", SuperBatch},
    Scene{"palette", FullPalette},
    Scene{"right-hidden", RightSideHidden},
    Scene{"all-hidden", AllHidden},
    Scene{"long-names", LongNames, nullptr, true},
    Scene{"thousand-files", ThousandFiles},
    Scene{"working", Working},
    Scene{"maximised", Maximised},
    Scene{"maximised-palette", MaximisedPalette},
    Scene{"maximised-image-fx", MaximisedEffects},
    Scene{"maximised-superbatch", MaximisedSuperBatch},
    Scene{"splash", Splash, [](Stage& stage) -> QWidget* { return &stage.TheSplashWindow(); }},
    Scene{"manual", Manual, [](Stage& stage) -> QWidget* { return &stage.TheManual(); }},
};

} // namespace

std::span<const Scene> Scenes() {
    return kScenes;
}

} // namespace mirelle::test
