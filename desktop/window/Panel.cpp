#include "desktop/window/Panel.h"

#include "desktop/binding/Updater.h"
#include "desktop/look/Tokens.h"

namespace mirelle {

Panel::Panel(QWidget* parent) : look::Card({}, parent), contents_(new QVBoxLayout) {
    SetBody(contents_);
    contents_->setSpacing(look::kSpaceSmall);
    setCursor(Qt::ArrowCursor);
    setVisible(false);
}

void Panel::Bind(Binder& binder, Frame& frame) {
    ShowWhenChanged(frame, this, [this, &frame] {
        const QString caption = QString::fromStdString(frame.Caption);
        if (Caption() != caption) SetCaption(caption);
    });
    binder.Panel(frame, *this);
}

void Panel::showEvent(QShowEvent* event) {
    look::Card::showEvent(event);
    emit VisibilityChanged();
}

void Panel::hideEvent(QHideEvent* event) {
    look::Card::hideEvent(event);
    emit VisibilityChanged();
}

} // namespace mirelle
