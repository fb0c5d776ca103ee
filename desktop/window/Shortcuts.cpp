#include "desktop/window/Shortcuts.h"

#include "desktop/binding/Binder.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QShortcut>

#include <array>

namespace mirelle {
namespace {

struct KeyRow {
    const char* keys;
    CommandButton FrmPicX::*button;
};

constexpr std::array kKeys = {
    KeyRow{"Ctrl+V", &FrmPicX::Command5},   KeyRow{"Ctrl+O", &FrmPicX::Command23},
    KeyRow{"Ctrl+S", &FrmPicX::Command3},   KeyRow{"Ctrl+C", &FrmPicX::Command12},
    KeyRow{"Ctrl+Z", &FrmPicX::cmdRGBUndo}, KeyRow{"F5", &FrmPicX::cmdRefreshFile},
    KeyRow{"F11", &FrmPicX::cmdFullScreen},
};

bool IsTextField(const QWidget* widget) {
    const auto* box = qobject_cast<const QComboBox*>(widget);
    return qobject_cast<const QLineEdit*>(widget) || (box && box->isEditable());
}

} // namespace

Shortcuts::Shortcuts(Binder& binder, QWidget& window) : QObject(&window) {
    for (const KeyRow& row : kKeys) {
        auto* shortcut = new QShortcut(QKeySequence(QString::fromLatin1(row.keys)), &window);
        CommandButton& button = binder.TheForm().*row.button;
        connect(shortcut, &QShortcut::activated, this,
                [&binder, &button] { binder.Run([&button] { button.UserClick(); }); });
        shortcuts_.push_back(shortcut);
    }
    if (auto* list = window.findChild<QWidget*>("List2")) {
        auto* remove =
            new QShortcut(QKeySequence(Qt::Key_Delete), list, nullptr, nullptr, Qt::WidgetShortcut);
        connect(remove, &QShortcut::activated, this,
                [&binder] { binder.Run([&binder] { binder.TheForm().List2.UserDblClick(); }); });
    }
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { FollowFocus(now); });
}

void Shortcuts::FollowFocus(const QWidget* focus) {
    for (QShortcut* shortcut : shortcuts_)
        shortcut->setEnabled(!IsTextField(focus));
}

} // namespace mirelle
