// What every control of a form has: a name, a place, looks, mouse events.
//
// Left, Top, Width and Height are in the units of the control's container, as the program reads and writes
// them; the window places controls by anchors of its own.
#pragma once

#include "forms/Event.h"
#include "forms/Picture.h"
#include "forms/Property.h"

#include <string>

namespace mirelle {

class Form;

// Mouse pointers that the program sets.
constexpr int kPointerDefault = 0;
constexpr int kPointerHourglass = 11;
constexpr int kPointerSizeAll = 15;

constexpr float kTwipsPerPixel = 15.0F;
// The inverse that the layout computes with, as a constant of its own.
constexpr double kPixelsPerTwip = 0.06666666666667;

void RefuseNegative(const float& size); // raises error 380

class Control : public Watched {
public:
    // Enters the control into the form's list. An index of -1 stands for a control that is in no array.
    Control(Form& form, std::string name, int index = -1);

    const std::string& Name() const { return name_; }
    int Index() const { return index_; }
    // "Command5" or "cmdMatDirs(3)".
    std::string FullName() const;

    Property<bool> Visible{*this, true};
    Property<bool> Enabled{*this, true};
    Property<float> Left{*this};
    Property<float> Top{*this};
    Property<float> Width{*this, 0, RefuseNegative};
    Property<float> Height{*this, 0, RefuseNegative};
    Property<Color> BackColor{*this, 0xC0C0C0};
    Property<Color> ForeColor{*this, 0};
    Property<std::string> ToolTipText{*this};
    Property<int> MousePointer{*this, kPointerDefault};
    Property<float> FontSize{*this, 8};

    Event<> Click;
    Event<> DblClick;
    Event<const MouseArgs&> MouseDown;
    Event<const MouseArgs&> MouseMove;
    Event<const MouseArgs&> MouseUp;

    // What the user's click does: nothing on a disabled control, else what the kind of control does and its
    // Click.
    virtual void UserClick();
    virtual void UserDblClick();
    void Move(float left, float top, float width, float height);
    virtual void Refresh() { TellWatchers(); }

private:
    std::string name_;
    int index_;
};

} // namespace mirelle
