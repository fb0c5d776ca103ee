#include "desktop/window/EffectButton.h"

#include "desktop/binding/Binder.h"
#include "desktop/look/IconTable.h"
#include "desktop/look/Typeface.h"

namespace mirelle {
namespace {

QString DrawingOf(const Control& control) {
    const std::string_view name = look::IconOf(control.FullName());
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

} // namespace

EffectButton::EffectButton(Binder& binder, CommandButton& control, QWidget* parent)
    : look::IconButton(DrawingOf(control), parent) {
    if (icon().isNull()) {
        setToolButtonStyle(Qt::ToolButtonTextOnly);
        setText(InitialsOf(QString::fromStdString(control.ToolTipText)));
        look::SetTextRank(*this, look::TextRank::Note);
    }
    binder.Button(control, *this);
}

QString InitialsOf(const QString& name) {
    const qsizetype swap = name.indexOf('>');
    if (swap >= 0) return name.mid(swap + 1);
    const QString first = name.section(':', 0, 0).section('(', 0, 0);
    QString initials;
    for (const QString& word : first.split(' ', Qt::SkipEmptyParts))
        initials += word.at(0).toUpper();
    return initials.size() > 1 ? initials.left(3) : first.left(2);
}

} // namespace mirelle
