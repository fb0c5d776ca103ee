#include "tests/driver/random/CanvasRule.h"

#include "fx/KernelTable.h"
#include "fx/PointFX.h"
#include "tests/driver/LineReader.h"
#include "tests/driver/References.h"
#include "tests/driver/Values.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace mirelle::driver {
namespace {

using test::ScriptedDesktop;

constexpr int kRevertingSwitch = 2; // of cmdColorDialog
constexpr std::int64_t kSurelyInMemory = std::int64_t{1} << 22;

bool IsModest(std::int64_t width, std::int64_t height) {
    return width * height <= kSurelyInMemory;
}

bool IsModest(const PictureBox& box) {
    return IsModest(box.PixelWidth(), box.PixelHeight());
}

bool IsModest(const PixelFrame& frame) {
    return IsModest(frame.bytes.Width(), frame.bytes.Height());
}

// Whether every subscript that the record leads an effect to is in the array.
bool Holds(const PixelArray& array, const BitmapRecord& record) {
    return array.Width() >= record.bmWidth && array.Height() >= record.bmHeight;
}

// What stands in a row of the tables: a condition on the program ahead of the event. `control` is the one
// that the event is for.
using Condition = bool (*)(FrmPicX& form, const ScriptedDesktop& desktop, const Control& control);

bool Always(FrmPicX&, const ScriptedDesktop&, const Control&) {
    return true;
}

bool WithABitmapToPaste(FrmPicX&, const ScriptedDesktop& desktop, const Control&) {
    return desktop.clipboard.HasBitmap();
}

// An effect that leaves at a subscript beyond a bound, or without arrays, puts nothing back.
bool WithSoundArrays(FrmPicX& form, const ScriptedDesktop&, const Control&) {
    const BitmapRecord& source = form.FXSource.info;
    return !form.FXDest.bytes.IsEmpty() && Holds(form.FXSource.bytes, source) &&
           Holds(form.FXDest.bytes, source) && IsModest(form.FXSource) && IsModest(form.FXDest) &&
           IsModest(form.PicImage);
}

bool WithADocumentForBoth(FrmPicX& form, const ScriptedDesktop& desktop, const Control&) {
    const auto& answers = desktop.dialogs.openAnswers;
    return form.Check4.Value == kChecked && !answers.empty() && answers.front();
}

bool OfAFileThatIsShown(FrmPicX& form, const ScriptedDesktop&, const Control&) {
    return form.ckNoOpen.Value != kChecked && form.ckGradPic(0).Value != kChecked;
}

bool OfAChosenFile(FrmPicX& form, const ScriptedDesktop& desktop, const Control& control) {
    return form.File5.ListIndex() != kNoRow && OfAFileThatIsShown(form, desktop, control);
}

// The clipboard's or the file's picture comes to both, and then the arrays' bytes as after an effect.
bool ToWhatIsThere(FrmPicX& form, const ScriptedDesktop& desktop, const Control& control) {
    const bool reads =
        form.ClipboardIsSource ? desktop.clipboard.HasBitmap() : OfAFileThatIsShown(form, desktop, control);
    return reads || WithSoundArrays(form, desktop, control);
}

bool OfTheRevertingSwitch(FrmPicX& form, const ScriptedDesktop& desktop, const Control& control) {
    return control.Index() == kRevertingSwitch && ToWhatIsThere(form, desktop, control);
}

bool WithAPercentage(FrmPicX& form, const ScriptedDesktop& desktop, const Control&) {
    const auto& answers = desktop.dialogs.inputAnswers;
    return !answers.empty() && answers.front() && !answers.front()->empty() && IsModest(form.PicImage);
}

bool OfAModestCanvas(FrmPicX& form, const ScriptedDesktop&, const Control&) {
    return IsModest(form.PicImage);
}

bool OfAModestMaterial(FrmPicX& form, const ScriptedDesktop&, const Control&) {
    return IsModest(form.picSmall);
}

bool OfAModestResult(FrmPicX& form, const ScriptedDesktop&, const Control&) {
    return IsModest(form.picDest);
}

// What is lined up for one of the passes may end otherwise, and no pass come after it.
bool WithNothingInBetween(FrmPicX&, const ScriptedDesktop& desktop, const Control&) {
    return desktop.time.duringPass.empty();
}

struct Row {
    std::string_view control; // all controls of an array
    Condition condition;
};

constexpr std::array kClicks = {
    Row{"Command5", WithABitmapToPaste},
    Row{"Command23", WithADocumentForBoth},
    Row{"File5", OfAChosenFile},
    Row{"Label2", OfAModestMaterial},
    Row{"cmdSetMain", Always},
    Row{"cmdSetMain2", Always},
    Row{"cmdCopy", ToWhatIsThere},
    Row{"cmdColorDialog", OfTheRevertingSwitch},
    Row{"cmdCont", WithAPercentage},
    Row{"cmdCont33", OfAModestCanvas},
    Row{"cmdPointalism", WithNothingInBetween},
    Row{"cmdPointalismVert", WithNothingInBetween},
    Row{"cmdGradV", OfAModestResult},
    Row{"cmdGradReset", OfAModestResult},
    Row{"cmdSwapPic", OfAModestResult},
    Row{"chkStretch", OfAModestResult},
};

Condition ConditionOfClick(std::string_view control) {
    const auto row = std::ranges::find(kClicks, control, &Row::control);
    if (row != kClicks.end()) return row->condition;
    if (std::ranges::count(kKernelButtons, control, &KernelButton::control) > 0) return Always;
    if (std::ranges::count(kPointButtons, control, &PointButton::control) > 0) return WithSoundArrays;
    return nullptr;
}

// A slider that is set to where it is does nothing.
Condition ConditionOfSlider(const Control& control, const std::string& value) {
    const auto* slider = dynamic_cast<const ScrollBar*>(&control);
    if (control.Name() != "HSColorShift" || slider->Value == Read<std::int16_t>(value)) return nullptr;
    return WithSoundArrays;
}

Control* ControlOf(FrmPicX& form, const Reference& reference) {
    return form.Find(reference.name, reference.index);
}

} // namespace

bool HasToShowCanvas(FrmPicX& form, const ScriptedDesktop& desktop, const std::string& event) {
    const std::vector<std::string> words = WordsOf(event);
    const Control* control = nullptr;
    Condition condition = nullptr;
    if (words[0] == "click") {
        control = ControlOf(form, ReferenceIn(words[1]));
        if (control) condition = ConditionOfClick(control->Name());
    } else if (words[0] == "select" && words[1] == "File5") {
        control = &form.File5;
        condition = OfAFileThatIsShown;
    } else if (words[0] == "set") {
        control = ControlOf(form, PropertyReferenceIn(words[1]).owner);
        if (control) condition = ConditionOfSlider(*control, words[2]);
    } else if (event.starts_with("mouse down picSmall 2 ")) {
        control = &form.picSmall;
        condition = OfAModestMaterial;
    }
    return condition && control->Enabled && condition(form, desktop, *control);
}

} // namespace mirelle::driver
