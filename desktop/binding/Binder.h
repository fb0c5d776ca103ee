// Ties the form's controls to widgets, both ways: what the user does to a widget becomes the control's user
// action, and what a handler does to the control shows on the widget at the next turn of the event loop.
//
// The binder knows no handler and no place: whoever builds a panel makes the widgets, with their parents, and
// binds each one here. Widgets may go before the form; the form may not go before the widgets.
#pragma once

#include "app/FrmPicX.h"
#include "desktop/binding/ControlEvents.h"

#include <map>

class QAbstractButton;
class QAbstractSlider;
class QComboBox;
class QLabel;
class QLineEdit;
class QWidget;

namespace mirelle {

class RowsView;

namespace look {
class ElidedLabel;
class SpinArrows;
} // namespace look

class Binder {
public:
    explicit Binder(FrmPicX& form);

    void Button(CommandButton& control, QAbstractButton& widget);
    void Check(CheckBox& control, QAbstractButton& widget);
    void Option(OptionButton& control, QAbstractButton& widget);
    void Text(TextBox& control, QLineEdit& widget);
    // Editable or not, as the widget is.
    void Combo(ComboBox& control, QComboBox& widget);
    void List(ListControl& control, RowsView& widget);
    void Files(FileListBox& control, RowsView& widget);
    void Folders(DirListBox& control, RowsView& widget);
    void Drives(DriveListBox& control, QComboBox& widget);
    // What a drag of the thumb is to the control: scrolls, and one change where the thumb is let go; or a
    // change at every step, for what follows changes alone and should follow the hand.
    enum class Drag { Scrolls, Changes };
    void Slider(ScrollBar& control, QAbstractSlider& widget, Drag drag = Drag::Scrolls);
    void Spin(UpDown& control, look::SpinArrows& widget);
    void Caption(Label& control, QLabel& widget);
    void Caption(Label& control, look::ElidedLabel& widget);
    // The panel that a frame is; its caption goes to a label of its own, if it has one.
    void Panel(Frame& control, QWidget& widget, QLabel* caption = nullptr);
    // A widget that shows the control by itself (pictures): only its common looks and its mouse.
    void Plain(Control& control, QWidget& widget, ControlEvents::Take take);
    // Its looks alone, for a widget that delivers the mouse events itself.
    void Looks(Control& control, QWidget& widget);
    // Notes a control that a widget shows and serves all by itself, as the canvas does with the hairlines.
    void ShownElsewhere(Control& control) { ++bound_[&control]; }

    // The colours that the program gives the control, in the widget's palette. The colour that all controls
    // start with leaves the ground to the look.
    void Colours(Control& control, QWidget& widget);
    // The colour of a label's text, made as light as it has to be to be read on a card.
    void Ink(Label& control, QLabel& widget);

    // Runs what the user did, with errors shown.
    void Run(const std::function<void()>& action);

    FrmPicX& TheForm() { return form_; }
    // How often each control has been bound.
    const std::map<const Control*, int>& Bound() const { return bound_; }

private:
    // Visible, enabled, tool tip, accessible name, and `show` for what is special; mouse events by `take`.
    void Common(Control& control, QWidget& widget, std::function<void()> show, const std::string* caption);
    void Mouse(Control& control, QWidget& widget, ControlEvents::Take take);
    // Of a list of rows or of files.
    template <class ListOfRows>
    void Rows(ListOfRows& control, RowsView& widget);

    FrmPicX& form_;
    std::map<const Control*, int> bound_;
};

} // namespace mirelle
