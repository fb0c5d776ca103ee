// What panels are made of: each function makes one widget on a parent, bound to its control.
#pragma once

#include "desktop/binding/Binder.h"

#include "desktop/look/ColorSwatchButton.h"

#include <QBoxLayout>

#include <initializer_list>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QScrollBar;
class QSlider;

namespace mirelle {

class FittedView;

class Parts {
public:
    Parts(Binder& binder, QWidget& parent) : binder_(binder), parent_(parent) {}

    Binder& TheBinder() { return binder_; }
    FrmPicX& Form() { return binder_.TheForm(); }

    // A picture button, or one with its caption where the control has one.
    look::IconButton* Button(CommandButton& control);
    // A button whose ground is the colour that the program gives the control.
    look::ColorSwatchButton* Swatch(CommandButton& control);
    QCheckBox* Check(CheckBox& control);
    QRadioButton* Option(OptionButton& control, const QString& caption = {});
    QLineEdit* Field(TextBox& control, int width = 0);
    QComboBox* Choice(ComboBox& control);
    QComboBox* EditableChoice(ComboBox& control);
    RowsView* Rows(ListControl& control);
    QSlider* Slider(ScrollBar& control, Binder::Drag drag = Binder::Drag::Scrolls);
    QScrollBar* Bar(ScrollBar& control, Qt::Orientation orientation);
    look::ElidedLabel* Note(Label& control); // small, quiet, cut with dots where it is too long
    // Words that belong to no control.
    QLabel* Words(const QString& text);
    // The small caption at the head of a section.
    QLabel* SectionCaption(const QString& text = {});
    FittedView* Preview(PictureBox& control, QSize hint);
    FittedView* Preview(ImageControl& control, QSize hint);

private:
    Binder& binder_;
    QWidget& parent_;
};

// Layouts without margins of their own; the card gives the margin.
QHBoxLayout* Row(std::initializer_list<QWidget*> widgets = {}, int spacing = -1);
QVBoxLayout* Column(int spacing = -1);
// A thin line between groups of a bar.
QWidget* Divider(Qt::Orientation orientation, QWidget& parent);

} // namespace mirelle
