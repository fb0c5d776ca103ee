#include "forms/Controls.h"

#include "forms/Form.h"
#include "forms/RunTimeError.h"

#include <algorithm>

namespace mirelle {
namespace {

void RefuseBeyondChecked(const int& value) {
    if (value != kUnchecked && value != kChecked) throw RunTimeError(ErrorNumber::InvalidPropertyValue);
}

} // namespace

CheckBox::CheckBox(Form& form, std::string name, int index)
    : Control(form, std::move(name), index), Value(*this, kUnchecked, RefuseBeyondChecked) {
    Value.OnChange([this] { Click(); });
}

void CheckBox::UserClick() {
    if (Enabled) Value = Value == kChecked ? kUnchecked : kChecked;
}

OptionButton::OptionButton(Form& form, std::string name, int index) : Control(form, std::move(name), index) {
    Value.OnChange([this, &form] {
        if (!Value) return;
        for (Control* other : form.Controls()) {
            auto* option = dynamic_cast<OptionButton*>(other);
            if (option && option != this && option->Name() == Name()) option->Value = false;
        }
        Click();
    });
}

void OptionButton::UserClick() {
    if (Enabled) Value = true;
}

TextBox::TextBox(Form& form, std::string name, int index) : Control(form, std::move(name), index) {
    Text.OnChange([this] { Change(); });
}

ScrollBar::ScrollBar(Form& form, std::string name, int index) : Control(form, std::move(name), index) {
    Min.OnChange([this] { KeepInRange(); });
    Max.OnChange([this] { KeepInRange(); });
    Value.OnChange([this] { Change(); });
    Value.SetGuard([this](std::int16_t value) {
        if (!Holds(value)) throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    });
}

bool ScrollBar::Holds(std::int16_t value) const {
    return value >= std::min<std::int16_t>(Min, Max) && value <= std::max<std::int16_t>(Min, Max);
}

void ScrollBar::UserSet(std::int16_t value) {
    if (Enabled) Value = value;
}

void ScrollBar::UserDrag(std::int16_t value) {
    if (!Enabled || !Holds(value) || !Value.SetQuietly(value)) return;
    dragged_ = true;
    Scroll();
}

void ScrollBar::UserDrop() {
    if (dragged_) Change();
    dragged_ = false;
}

void ScrollBar::KeepInRange() {
    Value =
        std::clamp<std::int16_t>(Value, std::min<std::int16_t>(Min, Max), std::max<std::int16_t>(Min, Max));
}

void UpDown::UserUp() {
    if (Enabled) UpClick();
}

void UpDown::UserDown() {
    if (Enabled) DownClick();
}

void TimerControl::Advance(int milliseconds) {
    if (!Enabled || Interval <= 0) return;
    elapsed_ += milliseconds;
    while (Enabled && Interval > 0 && elapsed_ >= Interval) {
        elapsed_ -= Interval;
        Timer();
    }
    if (!Enabled) elapsed_ = 0;
}

} // namespace mirelle
