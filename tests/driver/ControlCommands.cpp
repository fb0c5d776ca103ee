// Commands for what a user does to a control.
#include "forms/Controls.h"
#include "forms/FileLists.h"
#include "forms/Lists.h"
#include "forms/PictureBox.h"
#include "tests/driver/Commands.h"
#include "tests/driver/Errors.h"
#include "tests/driver/LineReader.h"
#include "tests/driver/Properties.h"
#include "tests/driver/Values.h"

#include <array>
#include <limits>

namespace mirelle::driver {
namespace {

std::string Get(Session& session, Words words) {
    return GetProperty(session, PropertyReferenceIn(words[0]));
}

std::string Set(Session& session, Words words) {
    SetProperty(session, PropertyReferenceIn(words[0]), words[1]);
    return {};
}

std::string Click(Session& session, Words words) {
    const Reference target = ReferenceIn(words[0]);
    if (Form* form = session.FindForm(target)) {
        form->Click();
    } else {
        session.ControlOf(target).UserClick();
    }
    return {};
}

std::string DblClick(Session& session, Words words) {
    const Reference target = ReferenceIn(words[0]);
    // Nothing listens to a form's double click.
    if (!session.FindForm(target)) session.ControlOf(target).UserDblClick();
    return {};
}

template <class Kind>
Kind& ControlOfKind(Session& session, const std::string& word, const char* kindName) {
    auto* control = dynamic_cast<Kind*>(&session.ControlOf(ReferenceIn(word)));
    if (!control) throw UsageError(JsonString(word) + " is no " + kindName);
    return *control;
}

std::string Select(Session& session, Words words) {
    Reference list = ReferenceIn(words[0]);
    SetProperty(session, {std::move(list), {"ListIndex"}}, words[1]);
    return {};
}

std::string OpenDir(Session& session, Words words) {
    auto& list = ControlOfKind<DirListBox>(session, words[0], "folder list");
    if (list.Enabled) list.SetPath(words[1]);
    return {};
}

std::string Spin(Session& session, Words words) {
    auto& spinner = ControlOfKind<UpDown>(session, words[0], "spinner");
    if (words[1] == "up") {
        spinner.UserUp();
    } else if (words[1] == "down") {
        spinner.UserDown();
    } else {
        throw UsageError("spin CONTROL up|down");
    }
    return {};
}

// A place in client pixels, which a Single holds.
float Pixels(const std::string& word) {
    return Read<float>(word);
}

// Whatever has mouse events: the form and its controls.
template <class Target>
void RunMouseEvent(Target& target, const std::string& event, const MouseArgs& args) {
    if (event == "down") return target.MouseDown(args);
    if (event == "move") return target.MouseMove(args);
    if (event == "up") return target.MouseUp(args);
    throw UsageError("mouse down|move|up CONTROL BUTTON X Y");
}

std::string Mouse(Session& session, Words words) {
    const Reference target = ReferenceIn(words[1]);
    constexpr int kRightButton = 2;
    MouseArgs args{WholeNumberIn(words[2], 0, kRightButton), 0, Pixels(words[3]), Pixels(words[4])};
    if (Form* form = session.FindForm(target)) {
        args.x = form->ScaleX(args.x);
        args.y = form->ScaleY(args.y);
        RunMouseEvent(*form, words[0], args);
        return {};
    }
    Control& control = session.ControlOf(target);
    if (const auto* box = dynamic_cast<PictureBox*>(&control)) {
        args.x = box->ScaleFromPixels(args.x);
        args.y = box->ScaleFromPixels(args.y);
    }
    if (control.Enabled) RunMouseEvent(control, words[0], args);
    return {};
}

std::string Drag(Session& session, Words words) {
    auto& panel = ControlOfKind<Frame>(session, words[0], "panel");
    FrmPicX& form = session.MainForm();
    if (&panel != &form.FrShowFrames(0)) throw UsageError(JsonString(words[0]) + " can't be dragged");
    const float x = form.ScaleX(Pixels(words[1]));
    const float y = form.ScaleY(Pixels(words[2]));
    form.DragOver(panel, x, y);
    form.DragDrop(panel, x, y);
    constexpr int kLeftButton = 1;
    panel.MouseUp({kLeftButton, 0, x - panel.Left, y - panel.Top});
    return {};
}

std::string Key(Session& session, Words words) {
    if (words[0] != "esc") throw UsageError("key esc");
    session.desktop.keyboard.escapePressed = true;
    return {};
}

constexpr std::array kCommands = {
    Command{"get", "CONTROL.PROPERTY", 1, 1, Get},
    Command{"set", "CONTROL.PROPERTY VALUE", 2, 2, Set},
    Command{"click", "CONTROL", 1, 1, Click},
    Command{"dblclick", "CONTROL", 1, 1, DblClick},
    Command{"select", "LIST ROW", 2, 2, Select},
    Command{"opendir", "LIST PATH", 2, 2, OpenDir},
    Command{"spin", "CONTROL up|down", 2, 2, Spin},
    Command{"mouse", "down|move|up CONTROL BUTTON X Y", 5, 5, Mouse},
    Command{"drag", "CONTROL X Y", 3, 3, Drag},
    Command{"key", "esc", 1, 1, Key},
};

} // namespace

std::span<const Command> ControlCommands() {
    return kCommands;
}

} // namespace mirelle::driver
