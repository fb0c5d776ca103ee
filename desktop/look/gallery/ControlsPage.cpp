#include <functional>

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include "desktop/look/Card.h"
#include "desktop/look/ColorSwatchButton.h"
#include "desktop/look/ElidedLabel.h"
#include "desktop/look/gallery/GalleryStyle.h"
#include "desktop/look/gallery/Pages.h"
#include "desktop/look/IconButton.h"
#include "desktop/look/ProgressLine.h"
#include "desktop/look/SectionCaption.h"
#include "desktop/look/SpinArrows.h"
#include "desktop/look/Tokens.h"
#include "desktop/look/Typeface.h"

namespace mirelle::look {

namespace {

struct StateColumn {
    const char* name;
    Forced state;
};

constexpr StateColumn kColumns[] = {{"Rest", Forced::Rest},
                                    {"Hovered", Forced::Hovered},
                                    {"Pressed", Forced::Pressed},
                                    {"Focused", Forced::Focused},
                                    {"Disabled", Forced::Disabled}};

struct Row {
    const char* name;
    std::function<QWidget*()> make;
};

template <typename Button>
Button* Checkable(Button* button) {
    button->setCheckable(true);
    button->setChecked(true);
    return button;
}

QPushButton* Push(const char* text) {
    return new QPushButton(QString::fromLatin1(text));
}

QPushButton* DefaultPush() {
    auto* button = Push("Save");
    button->setDefault(true);
    return button;
}

QWidget* Swatch(QRgb colour, QStringView icon) {
    auto* button = new ColorSwatchButton(icon);
    button->SetColour(QColor(colour));
    return button;
}

QCheckBox* Check(Qt::CheckState state) {
    auto* box = new QCheckBox(QStringLiteral("Increment"));
    box->setTristate(state == Qt::PartiallyChecked);
    box->setCheckState(state);
    return box;
}

QRadioButton* Radio(bool on) {
    auto* button = new QRadioButton(QStringLiteral("Feet"));
    button->setAutoExclusive(false);
    button->setChecked(on);
    return button;
}

QLineEdit* Edit(const char* text) {
    auto* edit = new QLineEdit(QString::fromLatin1(text));
    edit->setPlaceholderText(QStringLiteral("Material name"));
    edit->setFixedWidth(110);
    return edit;
}

QComboBox* Combo(bool editable) {
    auto* box = new QComboBox;
    box->addItems({QStringLiteral("*.jpg"), QStringLiteral("*.jpeg"), QStringLiteral("*.bmp")});
    box->setEditable(editable);
    box->setFixedWidth(110);
    return box;
}

QSpinBox* Spin() {
    auto* box = new QSpinBox;
    box->setRange(0, 9999);
    box->setValue(12);
    box->setFixedWidth(110);
    return box;
}

QSlider* Slide(int low, int high, int value) {
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setRange(low, high);
    slider->setValue(value);
    slider->setFixedWidth(110);
    return slider;
}

QScrollBar* Scroll() {
    auto* bar = new QScrollBar(Qt::Horizontal);
    bar->setRange(0, 100);
    bar->setPageStep(40);
    bar->setValue(30);
    bar->setFixedWidth(110);
    return bar;
}

Card* StateTable(const char* caption, const std::vector<Row>& rows) {
    auto* card = new Card(QString::fromLatin1(caption));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kSpaceLarge);
    card->SetBody(grid);
    int column = 1;
    for (const StateColumn& state : kColumns) {
        grid->addWidget(new SectionCaption(QString::fromLatin1(state.name)), 0, column++);
    }
    int line = 1;
    for (const Row& row : rows) {
        grid->addWidget(new SectionCaption(QString::fromLatin1(row.name)), line, 0);
        column = 1;
        for (const StateColumn& state : kColumns) {
            QWidget* widget = row.make();
            ForceState(*widget, state.state);
            grid->addWidget(widget, line, column++, Qt::AlignLeft | Qt::AlignVCenter);
        }
        ++line;
    }
    return card;
}

Card* Buttons() {
    return StateTable("Buttons", {{"Push", [] { return Push("Load"); }},
                                  {"Default", [] { return DefaultPush(); }},
                                  {"Switched on", [] { return Checkable(Push("Panel")); }},
                                  {"Icon", [] { return new IconButton(u"paste"); }},
                                  {"Icon, on", [] { return Checkable(new IconButton(u"re-texture")); }},
                                  {"Colour", [] { return Swatch(0xffffff00, u"hairline-colour"); }},
                                  {"Swatch", [] { return Swatch(0xffc46a4a, {}); }},
                                  {"Check, off", [] { return Check(Qt::Unchecked); }},
                                  {"Check, on", [] { return Check(Qt::Checked); }},
                                  {"Check, part", [] { return Check(Qt::PartiallyChecked); }},
                                  {"Radio, off", [] { return Radio(false); }},
                                  {"Radio, on", [] { return Radio(true); }}});
}

Card* Fields() {
    return StateTable("Fields and rails", {{"Text", [] { return Edit("Art_0013"); }},
                                           {"Empty", [] { return Edit(""); }},
                                           {"Choice", [] { return Combo(false); }},
                                           {"Name", [] { return Combo(true); }},
                                           {"Number", [] { return Spin(); }},
                                           {"Arrows", [] { return new SpinArrows; }},
                                           {"Slider", [] { return Slide(4, 1020, 444); }},
                                           {"From zero", [] { return Slide(-255, 255, -90); }},
                                           {"Scroll bar", [] { return Scroll(); }}});
}

Card* Lists() {
    auto* card = new Card(QStringLiteral("Lists"));
    auto* row = new QHBoxLayout;
    card->SetBody(row);
    for (const bool enabled : {true, false}) {
        auto* list = new QListWidget;
        for (int i = 1; i <= 24; ++i)
            list->addItem(QStringLiteral("Art_%1.jpg").arg(i, 4, 10, QLatin1Char('0')));
        list->setCurrentRow(2);
        list->setEnabled(enabled);
        list->setFixedSize(190, 180);
        row->addWidget(list);
    }
    return card;
}

Card* Texts() {
    auto* card = new Card(QStringLiteral("Texts"));
    auto* column = new QVBoxLayout;
    card->SetBody(column);
    auto* off = new QLabel(QStringLiteral("What cannot be used now"));
    off->setEnabled(false);
    auto* warning = new QLabel(QStringLiteral("Make sure the Ruby Console is visible"));
    QPalette amber = warning->palette();
    amber.setColor(QPalette::WindowText, QColor(kWarning));
    warning->setPalette(amber);
    auto* path =
        new ElidedLabel(QStringLiteral("/home/texturer/Support/Materials/Architecture/Arch_0012.jpg"));
    path->setFixedWidth(260);
    auto* progress = new ProgressLine;
    progress->ShowShare(0.4);
    for (QWidget* widget : std::initializer_list<QWidget*>{
             new QLabel(QStringLiteral("Text of the first rank, 13 pixels")),
             new SectionCaption(QStringLiteral("Text of the second rank, 11 pixels")), off, warning, path,
             progress}) {
        column->addWidget(widget);
    }
    column->addStretch();
    return card;
}

} // namespace

QWidget* MakeControlsPage() {
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->addWidget(Buttons(), 0, 0);
    grid->addWidget(Fields(), 0, 1);
    grid->addWidget(Lists(), 1, 0);
    grid->addWidget(Texts(), 1, 1);
    return page;
}

} // namespace mirelle::look
