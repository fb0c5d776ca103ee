#include "bridge/SendMaterial.h"

#include "bridge/ConsoleSend.h"
#include "forms/Text.h"

namespace mirelle {
namespace {

constexpr Color kTextureModeColor = 0x800080;
constexpr const char* kTextureModeTip =
    "Enter \" Material Name \" to attach new texture to as currently selected image";
constexpr const char* kNameTip =
    "Fast Save: Select/Enter file and material name for save; select Increment Checkbox to increment";

} // namespace

SendMaterial::SendMaterial(FrmPicX& form) : form_(form) {
    form_.Command6.Click.Connect([this] { SendNewMaterial(); });
    form_.Command7.Click.Connect([this] { ChangeTexture(); });
    form_.cmdReMat.Click.Connect([this] { ToggleTextureMode(); });
}

void SendMaterial::SendNewMaterial() {
    const bool noFiles = form_.File5.ListCount() == 0;
    const bool noName = form_.textProfileName.Text().empty();
    if (noFiles && noName) {
        Tell("Select image directory, and name material before sending materials to SketchUp");
        form_.textProfileName.Text = "Enter Image Name";
        return;
    }
    if (noName) {
        Tell("Enter image name before sending material to SketchUp");
        form_.textProfileName.Text = "Enter Image Name";
        return;
    }
    if (noFiles) return Tell("Select directory with images before sending materials to SketchUp");
    RunSend(form_, [this] {
        RubyConsoleLink link(form_.ports.console);
        link.Activate();
        const LineFields fields = MaterialFields(form_, form_.CurrentImagePath.Text());
        link.CreateShell();
        link.Send({Line::P1, Line::P2, Line::P3});
        link.Send({Line::M1, Line::M2}, fields);
        SendSize(form_, link);
    });
}

void SendMaterial::ChangeTexture() {
    if (form_.textProfileName.Text().empty()) {
        Tell("Select directory and image before applying texture and enter exact material name (in quotes) "
             "before "
             "changing its texture in SketchUp");
        form_.textProfileName.Text = "\"EnterMaterialName\"";
        return;
    }
    if (form_.File5.ListCount() == 0) {
        return Tell("Select directory with images before applying texture to SketchUp");
    }
    RunSend(form_, [this] {
        RubyConsoleLink link(form_.ports.console);
        link.Activate();
        const LineFields fields = MaterialFields(form_, form_.CurrentImagePath.Text());
        link.CreateShell();
        link.Send({Line::P1, Line::P2, Line::P3});
        link.Send({Line::M1c}, fields);
        link.Send({Line::M2}, fields);
        SendSize(form_, link);
    });
}

void SendMaterial::ToggleTextureMode() {
    if (form_.Command7.Visible) {
        LeaveTextureMode();
    } else {
        EnterTextureMode();
    }
}

void SendMaterial::EnterTextureMode() {
    form_.textProfileName.BackColor = kTextureModeColor;
    form_.textProfileName.Text = "\"\"";
    form_.textProfileName.ToolTipText = kTextureModeTip;
    form_.Command7.Visible = true;
    form_.Command6.Visible = false;
}

void SendMaterial::LeaveTextureMode() {
    form_.textProfileName.BackColor = 0;
    form_.textProfileName.Text = Before(form_.File5.FileName(), ".");
    form_.textProfileName.ToolTipText = kNameTip;
    form_.Command7.Visible = false;
    form_.Command6.Visible = true;
}

void SendMaterial::Tell(const char* message) {
    form_.ports.dialogs.MsgBox(message, MessageButtons::Ok, App::Title);
}

} // namespace mirelle
