#include "bridge/UncalledSends.h"

#include "bridge/ConsoleSend.h"
#include "bridge/PauseTime.h"
#include "forms/Text.h"

namespace mirelle {

void ApplyMaterialToLayerFaces(FrmPicX& form) {
    RubyConsoleLink link(form.ports.console);
    ResumeNext([&] { link.CreateShell(); });
    ResumeNext([&] { link.Activate(); });
    const std::string name = Trim(form.textProfileName.Text());
    ResumeNext([&] {
        link.SendText("Sketchup.active_model.selection.each{{}|e|\r"
                      "if e.layer.name ==\"Tarquell\"\r"
                      "if e.is_a?(Sketchup::Face)\r"
                      "end\r"
                      "end\r"
                      "mn =\"" +
                      name +
                      "\"\r"
                      "e.material = mn\r"
                      "e.back_material = mn{}}\r");
    });
}

void SendMaterialAfterSave(FrmPicX& form, const std::string& windowTitle, const std::string& fileName) {
    RunSend(form, [&] {
        RubyConsoleLink link(form.ports.console);
        link.Activate(windowTitle);
        LineFields fields = MaterialFields(form, form.CurrentImagePath.Text());
        fields.name = Replace(fileName, Trim(Replace(form.Combo5.Text(), "*", "")), "");
        link.CreateShell();
        link.Send({Line::P1, Line::P2, Line::P3});
        PauseTime(form.ports);
        link.Send({Line::M1b, Line::M2}, fields);
        SendSize(form, link);
    });
}

} // namespace mirelle
