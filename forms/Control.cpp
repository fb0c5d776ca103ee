#include "forms/Control.h"

#include "forms/Form.h"
#include "forms/RunTimeError.h"

namespace mirelle {

void RefuseNegative(const float& size) {
    if (!(size >= 0)) throw RunTimeError(ErrorNumber::InvalidPropertyValue);
}

Control::Control(Form& form, std::string name, int index) : name_(std::move(name)), index_(index) {
    form.Enter(*this);
}

std::string Control::FullName() const {
    return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::UserClick() {
    if (Enabled) Click();
}

void Control::UserDblClick() {
    if (Enabled) DblClick();
}

void Control::Move(float left, float top, float width, float height) {
    Left = left;
    Top = top;
    Width = width;
    Height = height;
}

} // namespace mirelle
