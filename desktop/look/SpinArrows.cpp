#include "desktop/look/SpinArrows.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStylePainter>
#include <QTimerEvent>

#include "desktop/look/PaintFields.h"
#include "desktop/look/Surface.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

constexpr int kFirstRepeat = 400; // milliseconds
constexpr int kNextRepeat = 80;

} // namespace

SpinArrows::SpinArrows(QWidget* parent) : QWidget(parent) {
    setFixedSize(kArrowWidth, kControlHeight);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
}

QSize SpinArrows::sizeHint() const {
    return {kArrowWidth, kControlHeight};
}

QStyleOptionSpinBox SpinArrows::Option() const {
    QStyleOptionSpinBox option;
    option.initFrom(this);
    option.frame = false;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    option.activeSubControls = held_ != QStyle::SC_None ? held_ : hovered_;
    option.state.setFlag(QStyle::State_Sunken, held_ != QStyle::SC_None);
    return option;
}

QStyle::SubControl SpinArrows::PartAt(QPoint place) const {
    if (!rect().contains(place)) return QStyle::SC_None;
    return place.y() < height() / 2 ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown;
}

void SpinArrows::Step(QStyle::SubControl part) {
    if (part != QStyle::SC_None) emit Stepped(part == QStyle::SC_SpinBoxUp ? 1 : -1);
}

void SpinArrows::Release() {
    held_ = QStyle::SC_None;
    repeat_.stop();
    update();
}

bool SpinArrows::event(QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::Leave) hovered_ = QStyle::SC_None;
    if (type == QEvent::ToolTipChange) setAccessibleName(toolTip());
    const bool gone = type == QEvent::Hide || (type == QEvent::EnabledChange && !isEnabled());
    if (gone) Release(); // a step that hides or disables its own arrows must not go on stepping
    return QWidget::event(event);
}

void SpinArrows::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    const QStyleOptionSpinBox option = Option();
    painter.drawComplexControl(QStyle::CC_SpinBox, option);
    if (ShowsFocus(option)) Surface(painter).FocusRing(rect(), kControlRadius, QColor(kCard));
}

void SpinArrows::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
    held_ = PartAt(event->position().toPoint());
    repeat_.start(kFirstRepeat, this);
    update();
    Step(held_);
}

void SpinArrows::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Release();
}

void SpinArrows::mouseMoveEvent(QMouseEvent* event) {
    hovered_ = PartAt(event->position().toPoint());
    update();
}

void SpinArrows::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Up) return Step(QStyle::SC_SpinBoxUp);
    if (event->key() == Qt::Key_Down) return Step(QStyle::SC_SpinBoxDown);
    QWidget::keyPressEvent(event);
}

void SpinArrows::timerEvent(QTimerEvent* event) {
    if (event->timerId() != repeat_.timerId()) return QWidget::timerEvent(event);
    repeat_.start(kNextRepeat, this);
    Step(held_);
}

} // namespace mirelle::look
