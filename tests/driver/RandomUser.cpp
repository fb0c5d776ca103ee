#include "tests/driver/RandomUser.h"

#include "tests/driver/Json.h"

#include <algorithm>

namespace mirelle::driver {
namespace {

// What people type into any box: names, numbers at and beyond every limit, what is no number at all.
constexpr std::string_view kTexts[] = {
    "",         " ",          "0",         "1",           "12",       "200",
    "-3",       "0.5",        "1.5e3",     "32767",       "32768",    "1E999",
    "99999999", "2147483648", "&HFFFF",    "12 ft",       "abc",      "_",
    "Art_12",   "My_brick_3", "a_b_c_",    "*.jpg",       "*.tif",    "jpg",
    "*",        "Art_",       "Bio_",      "\"x\"",       "a\\b/c:d", "wall + {brick}",
    "255,0,1",  "1,2",        "300,-5,7,", "\u00fcber_7", "\xff\xfe", "\r\n",
    "100%",     "%",          "..\\..",    "50",
};

constexpr int kSomeCoordinates[] = {-2147483647, -40000, -300, -1,  0,   1,     2,         7,
                                    50,          120,    199,  200, 300, 32768, 2147483647};

} // namespace

std::string RandomUser::Next(FrmPicX& form) {
    if (planned_.empty() && Below(12) == 0) PlanARoad();
    if (!planned_.empty()) {
        std::string next = std::move(planned_.front());
        planned_.pop_front();
        return next;
    }
    switch (Below(10)) {
    case 0:
    case 1:
        return OnTheForm();
    case 2:
        return OnTheDesktop();
    case 3:
        return Below(3) == 0 ? LinedUp(form) : OnAnyControl(form);
    default:
        return OnAnyControl(form);
    }
}

// What takes several events in a row: pastes, crops, saves, opening, choosing colours, panels that come and
// go. Events in no order at all seldom get so far.
void RandomUser::PlanARoad() {
    switch (Below(9)) {
    case 0:
        planned_ = {"clipboard load " + OneOf(reach_.pictures), "click Command5"};
        PlanACrop();
        break;
    case 1:
        PlanACrop();
        planned_.insert(planned_.end(),
                        {Below(2) == 0 ? "answer msg yes" : "answer msg no", "click Command3"});
        break;
    case 2:
        planned_ = {"answer open " + JsonString(OneOf(reach_.documents)), "click Command23"};
        break;
    case 3:
        planned_ = {Below(3) == 0 ? "answer color cancel"
                                  : "answer color " + std::to_string(Below(0x1000000)),
                    "click cmdColorDialog(" + std::to_string(Below(5)) + ")"};
        break;
    case 4:
        planned_ = {"mouse down FrShowFrames(0) 1 3 3", "mouse move FrShowFrames(0) 1 60 40",
                    "drag FrShowFrames(0) " + std::to_string(Below(300)) + " " + std::to_string(Below(200))};
        break;
    case 5: {
        const std::string which = std::to_string(Below(2));
        planned_ = {"click cmdHideFrame(" + which + ")", "click cmdShowFrames",
                    "click Command18(" + which + ")"};
        break;
    }
    case 6:
        planned_ = {"click cmdGetCorvane(0)", "click Command1(" + std::to_string(Below(2)) + ")",
                    "close zFormUM"};
        break;
    case 7:
        planned_ = {"click Command2", "click Command10", "key esc", "click Command13"};
        break;
    default:
        planned_ = {Below(2) == 0 ? "answer input cancel" : "answer input " + Text(), "click cmdReMat",
                    "click Command8"};
    }
}

void RandomUser::PlanACrop() {
    const auto place = [this] { return " " + std::to_string(Below(250)) + " " + std::to_string(Below(180)); };
    planned_.push_back("mouse down Form 1" + place());
    for (int moves = Below(4); moves > 0; --moves)
        planned_.push_back("mouse move Form 1" + place());
    if (Below(8) == 0) planned_.push_back("mouse down Form 2" + place());
    planned_.push_back("mouse up Form 1" + place());
}

std::string RandomUser::OnAnyControl(FrmPicX& form) {
    return OnControl(*OneOf(form.Controls()));
}

std::string RandomUser::OnControl(Control& control) {
    const std::string name = control.FullName();
    if (Below(8) == 0) return "mouse " + Place(name);
    if (Below(12) == 0) return "dblclick " + name;
    if (dynamic_cast<TextBox*>(&control)) return "set " + name + ".Text " + Text();
    if (const auto* bar = dynamic_cast<ScrollBar*>(&control)) {
        const int least = std::min(bar->Min(), bar->Max());
        const int range = std::max(bar->Min(), bar->Max()) - least;
        return "set " + name + ".Value " + std::to_string(least + Below(range + 1));
    }
    if (const auto* combo = dynamic_cast<ComboBox*>(&control)) {
        return Below(2) == 0 ? "set " + name + ".Text " + Text() : Row(name, combo->ListCount());
    }
    if (dynamic_cast<DirListBox*>(&control))
        return "opendir " + name + " " + JsonString(OneOf(reach_.folders));
    if (const auto* list = dynamic_cast<ListControl*>(&control)) return Row(name, list->ListCount());
    if (const auto* files = dynamic_cast<FileListBox*>(&control)) return Row(name, files->ListCount());
    if (dynamic_cast<DriveListBox*>(&control))
        return "set " + name + ".Drive " + (Below(2) == 0 ? "C:" : "D:");
    if (dynamic_cast<UpDown*>(&control)) return "spin " + name + (Below(2) == 0 ? " up" : " down");
    if (dynamic_cast<PictureBox*>(&control)) return "mouse " + Place(name);
    return "click " + name;
}

std::string RandomUser::OnTheForm() {
    switch (Below(8)) {
    case 0:
        return "click Form";
    case 1: {
        constexpr std::string_view kStates[] = {"normal", "maximized", "minimized", "normal 320 200",
                                                "maximized 400 300"};
        return "window " + std::string(OneOf(kStates));
    }
    case 2:
        return "activate";
    case 3:
        return "drag FrShowFrames(0) " + std::to_string(OneOf(kSomeCoordinates)) + " " +
               std::to_string(OneOf(kSomeCoordinates));
    default:
        return "mouse " + Place("Form");
    }
}

std::string RandomUser::OnTheDesktop() {
    switch (Below(9)) {
    case 0:
        return "clipboard clear";
    case 1:
        return "clipboard text " + Text();
    case 2:
        return "console absent";
    case 3:
        return "console present";
    case 4:
        return "answer input " + Text();
    case 5:
        return "answer color " + std::to_string(Below(0x1000000));
    case 6:
        return Below(2) == 0 ? "answer msg yes" : "key esc";
    default:
        return "clipboard load " + OneOf(reach_.pictures);
    }
}

std::string RandomUser::LinedUp(FrmPicX& form) {
    const std::string when =
        Below(2) == 0 ? "during pause " : "during pass " + std::to_string(1 + Below(3)) + " ";
    return when + OnAnyControl(form);
}

std::string RandomUser::Text() {
    return JsonString(OneOf(kTexts));
}

std::string RandomUser::Place(const std::string& target) {
    constexpr std::string_view kEvents[] = {"down", "move", "up"};
    // Mostly on the picture, now and then anywhere.
    const auto coordinate = [this] { return Below(6) == 0 ? OneOf(kSomeCoordinates) : Below(250); };
    const std::string event(OneOf(kEvents));
    const std::string button = std::to_string(Below(3));
    const std::string x = std::to_string(coordinate());
    return event + " " + target + " " + button + " " + x + " " + std::to_string(coordinate());
}

std::string RandomUser::Row(const std::string& list, int count) {
    return count == 0 ? "click " + list : "select " + list + " " + std::to_string(Below(count));
}

} // namespace mirelle::driver
