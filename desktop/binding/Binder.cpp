#include "desktop/binding/Binder.h"

#include "desktop/binding/HandlerGuard.h"
#include "desktop/binding/Updater.h"
#include "desktop/look/Contrast.h"
#include "desktop/look/ElidedLabel.h"
#include "desktop/look/SpinArrows.h"
#include "desktop/look/Tokens.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <utility>

namespace mirelle {
namespace {

// The ground that a control has until the program gives it another one.
constexpr Color kGroundOfTheLook = 0xC0C0C0;

QColor ToQColor(Color color) {
    const Pixel pixel = PixelOf(color);
    return {pixel.red, pixel.green, pixel.blue};
}

// The colour, mixed with white until it stands out from a card as small text should.
QColor Readable(const QColor& colour) {
    constexpr int kStep = 10;
    int share = 0;
    QRgb ink = colour.rgb();
    while (share < 100 && look::ContrastRatio(ink, look::kCard) < look::kReadableText) {
        share += kStep;
        ink = look::Mixed(colour.rgb(), look::kTextStrong, share);
    }
    return QColor::fromRgb(ink);
}

void ShowChecked(QAbstractButton& widget, bool checked) {
    if (widget.isChecked() == checked) return;
    const QSignalBlocker quiet(widget);
    widget.setChecked(checked);
}

} // namespace

Binder::Binder(FrmPicX& form) : form_(form) {}

void Binder::Run(const std::function<void()>& action) {
    RunGuarded(form_.ports.dialogs, action);
}

void Binder::Common(Control& control, QWidget& widget, std::function<void()> show,
                    const std::string* caption) {
    ++bound_[&control];
    widget.setObjectName(QString::fromStdString(control.FullName()));
    ShowWhenChanged(control, &widget, [&control, &widget, caption, special = std::move(show)] {
        const QString tip = QString::fromStdString(control.ToolTipText);
        if (widget.toolTip() != tip) widget.setToolTip(tip);
        const QString name = caption && !caption->empty() ? QString::fromStdString(*caption) : tip;
        // A control that tells nothing keeps the name that its panel gave it.
        if (!name.isEmpty() && widget.accessibleName() != name) widget.setAccessibleName(name);
        if (widget.accessibleDescription() != tip) widget.setAccessibleDescription(tip);
        if (special) special();
        if (widget.isEnabledTo(widget.parentWidget()) != control.Enabled())
            widget.setEnabled(control.Enabled);
        if (widget.isHidden() == control.Visible()) widget.setVisible(control.Visible);
    });
}

void Binder::Mouse(Control& control, QWidget& widget, ControlEvents::Take take) {
    new ControlEvents(control, widget, form_.ports.dialogs, take);
}

void Binder::Button(CommandButton& control, QAbstractButton& widget) {
    Common(control, widget, nullptr, &control.Caption());
    Mouse(control, widget, ControlEvents::Take::Mouse);
    QObject::connect(&widget, &QAbstractButton::clicked, &widget,
                     [this, &control] { Run([&control] { control.UserClick(); }); });
}

void Binder::Check(CheckBox& control, QAbstractButton& widget) {
    widget.setCheckable(true);
    const auto show = [&control, &widget] {
        ShowChecked(widget, control.Value == kChecked);
        const QString caption = QString::fromStdString(control.Caption);
        if (widget.text() != caption) widget.setText(caption);
    };
    Common(control, widget, show, &control.Caption());
    Mouse(control, widget, ControlEvents::Take::Mouse);
    QObject::connect(&widget, &QAbstractButton::clicked, &widget, [this, &control, show] {
        Run([&control] { control.UserClick(); });
        show(); // the control decides what stands in the box
    });
}

void Binder::Option(OptionButton& control, QAbstractButton& widget) {
    widget.setCheckable(true);
    widget.setAutoExclusive(false); // the control clears its companions
    const auto show = [&control, &widget] { ShowChecked(widget, control.Value); };
    if (!control.Caption().empty()) widget.setText(QString::fromStdString(control.Caption));
    Common(control, widget, show, &control.Caption());
    Mouse(control, widget, ControlEvents::Take::Mouse);
    QObject::connect(&widget, &QAbstractButton::clicked, &widget, [this, &control, show] {
        Run([&control] { control.UserClick(); });
        show();
    });
}

void Binder::Text(TextBox& control, QLineEdit& widget) {
    const auto show = [&control, &widget] {
        const QString text = QString::fromStdString(control.Text);
        if (widget.text() == text) return;
        const int cursor = widget.cursorPosition();
        widget.setText(text);
        if (widget.hasFocus()) widget.setCursorPosition(cursor);
    };
    Common(control, widget, show, nullptr);
    Mouse(control, widget, ControlEvents::Take::DblClick);
    QObject::connect(&widget, &QLineEdit::textEdited, &widget, [this, &control](const QString& text) {
        Run([&] { control.Text = text.toStdString(); });
    });
}

void Binder::Spin(UpDown& control, look::SpinArrows& widget) {
    Common(control, widget, nullptr, nullptr);
    Mouse(control, widget, ControlEvents::Take::Mouse);
    QObject::connect(&widget, &look::SpinArrows::Stepped, &widget, [this, &control](int direction) {
        Run([&] { direction > 0 ? control.UserUp() : control.UserDown(); });
    });
}

void Binder::Caption(Label& control, QLabel& widget) {
    const auto show = [&control, &widget] {
        const QString caption = QString::fromStdString(control.Caption);
        if (widget.text() != caption) widget.setText(caption);
    };
    Common(control, widget, show, &control.Caption());
    Mouse(control, widget, ControlEvents::Take::FullClick);
}

void Binder::Caption(Label& control, look::ElidedLabel& widget) {
    Common(
        control, widget, [&control, &widget] { widget.SetText(QString::fromStdString(control.Caption)); },
        &control.Caption());
    Mouse(control, widget, ControlEvents::Take::FullClick);
}

void Binder::Panel(Frame& control, QWidget& widget, QLabel* caption) {
    const auto show = [&control, caption] {
        if (caption) caption->setText(QString::fromStdString(control.Caption));
    };
    Common(control, widget, show, &control.Caption());
    Mouse(control, widget, ControlEvents::Take::Mouse);
}

void Binder::Plain(Control& control, QWidget& widget, ControlEvents::Take take) {
    Common(control, widget, nullptr, nullptr);
    Mouse(control, widget, take);
}

void Binder::Looks(Control& control, QWidget& widget) {
    Common(control, widget, nullptr, nullptr);
}

void Binder::Ink(Label& control, QLabel& widget) {
    ShowWhenChanged(control, &widget, [&control, &widget] {
        QPalette palette = widget.palette();
        palette.setColor(QPalette::WindowText, Readable(ToQColor(control.ForeColor)));
        widget.setPalette(palette);
    });
}

void Binder::Colours(Control& control, QWidget& widget) {
    ShowWhenChanged(control, &widget, [&control, &widget] {
        QPalette palette;
        if (control.BackColor != kGroundOfTheLook) {
            const QColor ground = ToQColor(control.BackColor);
            const QColor ink = ToQColor(control.ForeColor);
            for (const auto role : {QPalette::Base, QPalette::Button})
                palette.setColor(role, ground);
            for (const auto role : {QPalette::Text, QPalette::ButtonText})
                palette.setColor(role, ink);
        }
        widget.setPalette(palette);
    });
}

} // namespace mirelle
