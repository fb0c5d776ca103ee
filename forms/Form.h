// A form: the window as the program knows it, with its controls, its surface and its life.
//
// Left, Top, Width and Height are twips and tell of the whole window; ScaleWidth and ScaleHeight tell of the
// client area, in pixels at start. Setting ScaleWidth gives the form a scale of the program's own, which then
// stays as it is when the window changes its size; setting ScaleMode to pixels takes it back.
#pragma once

#include "forms/Event.h"
#include "forms/PictureBox.h"
#include "forms/ports/Screen.h"
#include "forms/Property.h"
#include "forms/Surface.h"

#include <optional>
#include <string>
#include <vector>

namespace mirelle {

class Control;

constexpr int kWindowNormal = 0;
constexpr int kWindowMinimized = 1;
constexpr int kWindowMaximized = 2;

constexpr int kScaleUser = 0;
constexpr int kScalePixels = 3;

void RefuseUnknownState(const int& state); // raises error 380

// What the user drags over from another program and lets go: files by their full paths, or a bitmap.
struct DroppedData {
    std::vector<std::string> files;
    Picture bitmap;
};

class Form : public Watched {
public:
    Form(std::string name, Screen& screen, ScreenSize clientSize);

    const std::string& Name() const { return name_; }

    Property<std::string> Caption{*this};
    Property<bool> Visible{*this, false};
    Property<float> Left{*this};
    Property<float> Top{*this};
    Property<float> Width{*this, 0, RefuseNegative};
    Property<float> Height{*this, 0, RefuseNegative};
    Property<Color> BackColor{*this, 0xC0C0C0};
    Property<int> MousePointer{*this, kPointerDefault};
    // Setting it by code changes the window and runs Resize. Error 380 for a state that there is not.
    Property<int> WindowState{*this, kWindowNormal, RefuseUnknownState};
    PictureProperty<Form> Picture{*this};

    Event<> Resize;
    Event<> Activate;
    Event<> QueryUnload;
    Event<> Unload;
    Event<> Click;
    Event<const MouseArgs&> MouseDown;
    Event<const MouseArgs&> MouseMove;
    Event<const MouseArgs&> MouseUp;
    // A panel that is dragged is over the form, or was let go there; x and y in the form's scale.
    Event<Control&, float, float> DragOver;
    Event<Control&, float, float> DragDrop;
    // Something from another program was let go over the form.
    Event<const DroppedData&> OLEDragDrop;

    // The persistent image, of the size of the client area.
    mirelle::Picture Image() const { return surface_.Image(); }
    // What a window shows over the form's background (see Surface::Seen).
    mirelle::Picture Seen() const { return surface_.Seen(); }
    int ClientWidth() const { return surface_.Width(); }
    int ClientHeight() const { return surface_.Height(); }
    float ScaleWidth() const;
    float ScaleHeight() const;
    int ScaleMode() const { return userScale_ ? kScaleUser : kScalePixels; }
    void SetScaleWidth(float width); // error 380 for a width that is not above 0
    void SetScaleModePixels();
    // From device pixels of the client area to the form's scale and back.
    float ScaleX(float pixels) const;
    float ScaleY(float pixels) const;
    float PixelsX(float measure) const;
    float PixelsY(float measure) const;

    void Cls();
    void Refresh() { TellWatchers(); }
    Bitmap& Paint();
    Color Point(float x, float y) const;

    // The client size that the window takes when it comes to a state; a minimised one keeps what it has.
    ScreenSize ClientSizeIn(int state) const;
    // The user changed the window's state or size: Resize runs, if anything is other than before.
    void UserWindow(int state, ScreenSize clientSize);
    // The user closes the window.
    void UserClose();

    const mirelle::Picture& AssignedPicture() const { return surface_.Assigned(); }
    void AssignPicture(mirelle::Picture picture);

    // The controls in the order of their making.
    const std::vector<Control*>& Controls() const { return controls_; }
    // The control of that name, or null. An index of -1 asks for a control that is in no array.
    Control* Find(const std::string& name, int index = -1) const;
    void Enter(Control& control) { controls_.push_back(&control); }

private:
    struct UserScale {
        float width;
        float height;
    };
    void TakeClientSize(ScreenSize clientSize);
    void ChangeStateByCode();

    std::string name_;
    Screen& screen_;
    ScreenSize normalSize_;
    Surface surface_;
    std::optional<UserScale> userScale_;
    std::vector<Control*> controls_;
};

} // namespace mirelle
