#include "forms/Form.h"

#include "forms/Control.h"
#include "forms/Numbers.h"
#include "forms/RunTimeError.h"

#include <algorithm>

namespace mirelle {

void RefuseUnknownState(const int& state) {
    if (state < kWindowNormal || state > kWindowMaximized)
        throw RunTimeError(ErrorNumber::InvalidPropertyValue);
}

Form::Form(std::string name, Screen& screen, ScreenSize clientSize)
    : name_(std::move(name)), screen_(screen), normalSize_(clientSize) {
    surface_.SetBackground(BackColor);
    TakeClientSize(clientSize);
    BackColor.OnChange([this] { surface_.SetBackground(BackColor); });
    WindowState.OnChange([this] { ChangeStateByCode(); });
}

float Form::ScaleWidth() const {
    return userScale_ ? userScale_->width : static_cast<float>(ClientWidth());
}
float Form::ScaleHeight() const {
    return userScale_ ? userScale_->height : static_cast<float>(ClientHeight());
}

void Form::SetScaleWidth(float width) {
    if (!(width > 0)) throw RunTimeError(ErrorNumber::InvalidPropertyValue);
    userScale_ = UserScale{width, ScaleHeight()};
    TellWatchers();
}

void Form::SetScaleModePixels() {
    userScale_.reset();
    TellWatchers();
}

float Form::ScaleX(float pixels) const {
    return userScale_ && ClientWidth() > 0 ? pixels * userScale_->width / static_cast<float>(ClientWidth())
                                           : pixels;
}
float Form::ScaleY(float pixels) const {
    return userScale_ && ClientHeight() > 0 ? pixels * userScale_->height / static_cast<float>(ClientHeight())
                                            : pixels;
}
float Form::PixelsX(float measure) const {
    return userScale_ && userScale_->width > 0
               ? measure * static_cast<float>(ClientWidth()) / userScale_->width
               : measure;
}
float Form::PixelsY(float measure) const {
    return userScale_ && userScale_->height > 0
               ? measure * static_cast<float>(ClientHeight()) / userScale_->height
               : measure;
}

void Form::Cls() {
    surface_.Clear();
    TellWatchers();
}

Bitmap& Form::Paint() {
    TellWatchers();
    return surface_.Paint();
}

Color Form::Point(float x, float y) const {
    return surface_.Point(PixelsX(x), PixelsY(y));
}

void Form::AssignPicture(mirelle::Picture picture) {
    surface_.Assign(std::move(picture));
    TellWatchers();
}

ScreenSize Form::ClientSizeIn(int state) const {
    if (state == kWindowMaximized) return screen_.MaximisedClientSize();
    return state == kWindowNormal ? normalSize_ : ScreenSize{ClientWidth(), ClientHeight()};
}

void Form::UserWindow(int state, ScreenSize clientSize) {
    const bool resized = clientSize.width != ClientWidth() || clientSize.height != ClientHeight();
    if (state == kWindowNormal) normalSize_ = clientSize;
    if (state != kWindowMinimized && resized) TakeClientSize(clientSize);
    const bool changed = WindowState.SetQuietly(state);
    if (changed || resized) Resize();
}

void Form::UserClose() {
    QueryUnload();
}

Control* Form::Find(const std::string& name, int index) const {
    const auto found = std::ranges::find_if(controls_, [&](const Control* control) {
        return control->Index() == index && control->Name() == name;
    });
    return found == controls_.end() ? nullptr : *found;
}

void Form::TakeClientSize(ScreenSize clientSize) {
    surface_.Resize(clientSize.width, clientSize.height);
    Width = static_cast<float>(clientSize.width) * kTwipsPerPixel;
    Height = static_cast<float>(clientSize.height) * kTwipsPerPixel;
}

void Form::ChangeStateByCode() {
    TakeClientSize(ClientSizeIn(WindowState));
    Resize();
}

} // namespace mirelle
