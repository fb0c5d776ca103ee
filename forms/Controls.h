// The plain controls: labels, frames, buttons, boxes, options, text boxes, sliders, spinners, shapes, timers.
#pragma once

#include "forms/Control.h"

#include <cstdint>

namespace mirelle {

class Label : public Control {
public:
    using Control::Control;
    Property<std::string> Caption{*this};
};

class Frame : public Control {
public:
    using Control::Control;
    Property<std::string> Caption{*this};
};

class CommandButton : public Control {
public:
    using Control::Control;
    Property<std::string> Caption{*this};
    // The drawing on a picture button; a colour choice takes it away.
    Property<bool> HasPicture{*this, true};
};

constexpr int kUnchecked = 0;
constexpr int kChecked = 1;

// Setting Value by code runs Click as the user's action does, when it changes the value.
class CheckBox : public Control {
public:
    CheckBox(Form& form, std::string name, int index = -1);
    Property<std::string> Caption{*this};
    Property<int> Value;
    void UserClick() override;
};

// One of a group; setting one of them true clears the others. Click runs when Value becomes true.
class OptionButton : public Control {
public:
    OptionButton(Form& form, std::string name, int index = -1);
    Property<std::string> Caption{*this};
    Property<bool> Value{*this, false};
    void UserClick() override;
};

class TextBox : public Control {
public:
    TextBox(Form& form, std::string name, int index = -1);
    Property<std::string> Text{*this};
    Event<> Change;
};

// A scroll bar or slider. Value stays between Min and Max (either may be the larger): assigning a value
// outside raises error 380; a bound that moves past the value takes it along.
class ScrollBar : public Control {
public:
    ScrollBar(Form& form, std::string name, int index = -1);
    Property<std::int16_t> Min{*this, 0};
    Property<std::int16_t> Max{*this, 32767};
    Property<std::int16_t> SmallChange{*this, 1};
    Property<std::int16_t> LargeChange{*this, 1};
    Property<std::int16_t> Value{*this, 0};
    Event<> Change; // the value changed
    Event<> Scroll; // the user is dragging the thumb

    // Whether a value lies between Min and Max.
    bool Holds(std::int16_t value) const;
    // The user moves the thumb to a value in one step: Change.
    void UserSet(std::int16_t value);
    // The user drags the thumb (Value follows, Scroll at each step) and lets it go (one Change, if it moved).
    void UserDrag(std::int16_t value);
    void UserDrop();

private:
    void KeepInRange();

    bool dragged_ = false;
};

// A spinner.
class UpDown : public Control {
public:
    using Control::Control;
    Event<> UpClick;
    Event<> DownClick;
    void UserUp();
    void UserDown();
};

// A hollow rectangle drawn over the form.
class Shape : public Control {
public:
    using Control::Control;
    Property<Color> BorderColor{*this, 0};
};

// Fires every Interval milliseconds while it is enabled. Whoever runs the program's time calls Advance.
class TimerControl : public Control {
public:
    using Control::Control;
    Property<int> Interval{*this, 0};
    Event<> Timer;
    void Advance(int milliseconds);

private:
    int elapsed_ = 0;
};

} // namespace mirelle
