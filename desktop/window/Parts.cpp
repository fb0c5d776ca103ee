#include "desktop/window/Parts.h"

#include "desktop/binding/RowsView.h"
#include "desktop/binding/Updater.h"
#include "desktop/canvas/FittedView.h"
#include "desktop/look/ColorSwatchButton.h"
#include "desktop/look/ElidedLabel.h"
#include "desktop/look/IconTable.h"
#include "desktop/look/SectionCaption.h"
#include "desktop/look/Tokens.h"
#include "desktop/look/Typeface.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>

namespace mirelle {
namespace {

QString IconNameOf(const Control& control) {
    const std::string_view name = look::IconOf(control.FullName());
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

} // namespace

look::IconButton* Parts::Button(CommandButton& control) {
    auto* button = new look::IconButton(IconNameOf(control), &parent_);
    binder_.Button(control, *button);
    return button;
}

look::ColorSwatchButton* Parts::Swatch(CommandButton& control) {
    auto* button = new look::ColorSwatchButton(IconNameOf(control), &parent_);
    binder_.Button(control, *button);
    ShowWhenChanged(control, button, [&control, button] {
        const Pixel pixel = PixelOf(control.BackColor);
        button->SetColour(QColor(pixel.red, pixel.green, pixel.blue));
    });
    return button;
}

QCheckBox* Parts::Check(CheckBox& control) {
    auto* check = new QCheckBox(&parent_);
    check->setFocusPolicy(Qt::TabFocus);
    binder_.Check(control, *check);
    return check;
}

QRadioButton* Parts::Option(OptionButton& control, const QString& caption) {
    auto* option = new QRadioButton(caption, &parent_);
    option->setFocusPolicy(Qt::TabFocus);
    binder_.Option(control, *option);
    return option;
}

QLineEdit* Parts::Field(TextBox& control, int width) {
    auto* field = new QLineEdit(&parent_);
    field->setFixedHeight(look::kControlHeight);
    if (width > 0)
        field->setFixedWidth(width);
    else
        field->setMinimumWidth(look::kIconButton);
    binder_.Text(control, *field);
    return field;
}

QComboBox* Parts::Choice(ComboBox& control) {
    auto* choice = new QComboBox(&parent_);
    choice->setFixedHeight(look::kControlHeight);
    choice->setMinimumContentsLength(1);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    choice->setFocusPolicy(Qt::TabFocus);
    binder_.Combo(control, *choice);
    return choice;
}

QComboBox* Parts::EditableChoice(ComboBox& control) {
    auto* choice = new QComboBox(&parent_);
    choice->setFixedHeight(look::kControlHeight);
    choice->setMinimumContentsLength(1);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    choice->setEditable(true);
    binder_.Combo(control, *choice);
    return choice;
}

RowsView* Parts::Rows(ListControl& control) {
    auto* rows = new RowsView(&parent_);
    binder_.List(control, *rows);
    return rows;
}

QSlider* Parts::Slider(ScrollBar& control, Binder::Drag drag) {
    auto* slider = new QSlider(Qt::Horizontal, &parent_);
    slider->setFocusPolicy(Qt::TabFocus);
    slider->setMinimumWidth(look::kIconButton * 2);
    binder_.Slider(control, *slider, drag);
    return slider;
}

QScrollBar* Parts::Bar(ScrollBar& control, Qt::Orientation orientation) {
    auto* bar = new QScrollBar(orientation, &parent_);
    binder_.Slider(control, *bar);
    return bar;
}

look::ElidedLabel* Parts::Note(Label& control) {
    auto* note = new look::ElidedLabel({}, &parent_);
    look::SetTextRank(*note, look::TextRank::Note);
    binder_.Caption(control, *note);
    return note;
}

QLabel* Parts::Words(const QString& text) {
    auto* words = new QLabel(text, &parent_);
    look::SetTextRank(*words, look::TextRank::Note);
    return words;
}

QLabel* Parts::SectionCaption(const QString& text) {
    return new look::SectionCaption(text, &parent_);
}

FittedView* Parts::Preview(PictureBox& control, QSize hint) {
    FittedView* view = FittedView::Of(control, &parent_);
    view->SetSizeHint(hint);
    binder_.Plain(control, *view, ControlEvents::Take::Mouse);
    return view;
}

FittedView* Parts::Preview(ImageControl& control, QSize hint) {
    FittedView* view = FittedView::Of(control, &parent_);
    view->SetSizeHint(hint);
    binder_.Plain(control, *view, ControlEvents::Take::Mouse);
    return view;
}

QHBoxLayout* Row(std::initializer_list<QWidget*> widgets, int spacing) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing < 0 ? look::kSpaceSmall : spacing);
    for (QWidget* widget : widgets)
        row->addWidget(widget);
    return row;
}

QVBoxLayout* Column(int spacing) {
    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing < 0 ? look::kSpaceSmall : spacing);
    return column;
}

QWidget* Divider(Qt::Orientation orientation, QWidget& parent) {
    auto* line = new QWidget(&parent);
    line->setAutoFillBackground(true);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor::fromRgb(look::kFieldEdge));
    line->setPalette(palette);
    if (orientation == Qt::Vertical)
        line->setFixedSize(look::kEdge, look::kIcon);
    else
        line->setFixedHeight(look::kEdge);
    return line;
}

} // namespace mirelle
