#include "app/UserManual.h"

#include "app/FrmPicX.h"
#include "forms/Text.h"

namespace mirelle {
namespace {

constexpr ScreenSize kManualFormSize{320, 140};
constexpr int kWeb = 0;
constexpr int kLocal = 1;
constexpr const char* kManualAddress = "https://mirelle.example/manual";
// "C:\", the root of the drive, as the viewer's working folder.
constexpr int kDriveRootLength = 3;
constexpr int kShowMode = 0;

} // namespace

UserManual::UserManual(FrmPicX& mainForm)
    : Form("zFormUM", mainForm.ports.screen, kManualFormSize), mainForm_(mainForm) {
    Caption = "User Manual";
    Command1(kLocal).Caption = "Local";
    Command1(kLocal).ToolTipText = "View CorvaneSUNDIAL User Manual with default PDF Viewer";
    Command1(kWeb).Caption = "Web";
    Command1(kWeb).ToolTipText = "View CorvaneSUNDIAL User Manual Online";
    Command1(kLocal).Click.Connect(
        [this] { OpenDocument(mainForm_.AppPath("Support/Mirelle1UserManual1.pdf")); });
    Command1(kWeb).Click.Connect([this] { OpenDocument(kManualAddress); });
    mainForm_.cmdGetCorvane(0).Click.Connect([this] { ShowManualForm(); });
    QueryUnload.Connect([this] { BackToMainForm(); });
}

void UserManual::ShowManualForm() {
    WindowState = kWindowNormal;
    Visible = true;
    mainForm_.WindowState = kWindowMinimized;
}

void UserManual::BackToMainForm() {
    Visible = false;
    mainForm_.WindowState = kWindowNormal;
    mainForm_.Visible = true;
}

void UserManual::OpenDocument(const std::string& target) {
    ResumeNext([&] {
        mainForm_.ports.viewer.Open(target, mirelle::Left(mainForm_.ports.files.AppPath(), kDriveRootLength),
                                    kShowMode);
    });
}

} // namespace mirelle
