#include "bridge/BatchSend.h"

#include "bridge/ConsoleSend.h"
#include "bridge/PauseTime.h"
#include "forms/Text.h"

namespace mirelle {
namespace {

// ".jpg" and its like: what SuperBatch cuts off a file's name, whatever stands there.
constexpr int kExtensionLength = 4;

} // namespace

BatchSend::BatchSend(FrmPicX& form) : form_(form) {
    form_.Command10.Click.Connect([this] { SendFolder(); });
    form_.Command13.Click.Connect([this] { SendList(); });
}

void BatchSend::SendFolder() {
    if (form_.File5.ListCount() == 0) return TellEmpty();
    RunSend(form_, [this] {
        RubyConsoleLink link(form_.ports.console);
        link.Activate();
        const int count = form_.File5.ListCount();
        for (int row = 0; row < count; ++row)
            SendFile(link, row);
    });
}

void BatchSend::SendFile(RubyConsoleLink& link, int row) {
    form_.File5.Selected(row) = true; // its click loads and names the file
    const std::string file = Trim(form_.File5.FileName());
    const std::string extension = Trim(Replace(form_.Combo5.Text(), "*", ""));
    form_.textProfileName.Text = Replace(file, extension, "");
    const LineFields fields = MaterialFields(form_, form_.CurrentImagePath.Text());
    link.CreateShell();
    link.Send({Line::P1, Line::P2, Line::P3});
    link.Send({Line::M1, Line::M2}, fields);
    SendSize(form_, link);
    PauseTime(form_.ports);
}

void BatchSend::SendList() {
    if (form_.List2.ListCount() == 0) return TellEmpty();
    RunSend(form_, [this] {
        RubyConsoleLink link(form_.ports.console);
        link.Activate();
        const int count = form_.List2.ListCount();
        for (int row = 0; row < count; ++row) {
            SendRow(link, Trim(form_.List2.List(row)));
            form_.Label8(1).Caption = "Sent: " + std::to_string(row + 1);
        }
    });
}

void BatchSend::SendRow(RubyConsoleLink& link, const std::string& row) {
    const auto parts = Split(row, std::string(1, form_.ports.files.Separator()));
    if (parts.empty()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    const std::string last = Trim(parts.back());
    form_.textProfileName.Text = Trim(Left(last, Len(last) - kExtensionLength));
    // Every occurrence of the last part goes, and one comes back at the end.
    const LineFields fields = MaterialFields(form_, Replace(row, last, "") + last);
    link.CreateShell();
    link.Send({Line::P1, Line::P2, Line::P3});
    link.Send({Line::M1, Line::M2}, fields);
    PauseTime2(form_.ports);
    SendSize(form_, link);
}

void BatchSend::TellEmpty() {
    form_.ports.dialogs.MsgBox("Select image directory before sending materials to SketchUp",
                               MessageButtons::Ok, App::Title);
}

} // namespace mirelle
