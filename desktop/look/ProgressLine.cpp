#include "desktop/look/ProgressLine.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QTimerEvent>

#include "desktop/look/Surface.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

constexpr int kBeat = 33;          // milliseconds between two places of the wandering piece
constexpr double kStep = 1.0 / 45; // of a round, at each beat
constexpr double kPiece = 0.25;    // of the line's length

} // namespace

ProgressLine::ProgressLine(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFixedHeight(kProgressLine);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ProgressLine::ShowShare(double share) {
    share_ = std::isfinite(share) ? std::clamp(share, 0.0, 1.0) : 0.0;
    Enter(State::Share);
}

void ProgressLine::ShowBusy() {
    if (state_ != State::Busy) wander_ = 0;
    Enter(State::Busy);
}

void ProgressLine::Clear() {
    share_ = 0;
    Enter(State::Idle);
}

void ProgressLine::Enter(State state) {
    state_ = state;
    if (state == State::Busy && !beat_.isActive()) beat_.start(kBeat, this);
    if (state != State::Busy) beat_.stop();
    update();
}

QSize ProgressLine::sizeHint() const {
    return {0, kProgressLine};
}

void ProgressLine::paintEvent(QPaintEvent*) {
    if (state_ == State::Idle) return;
    QPainter painter(this);
    Surface surface(painter);
    surface.Fill(rect(), 0, QColor(kCardEdge));
    const double from = state_ == State::Busy ? wander_ * (1 + kPiece) - kPiece : 0;
    const double to = state_ == State::Busy ? from + kPiece : share_;
    const double left = std::max(from, 0.0) * width();
    const double right = std::min(to, 1.0) * width();
    if (right > left) surface.Fill(QRectF(left, 0, right - left, height()), 0, QColor(kAccent));
}

void ProgressLine::timerEvent(QTimerEvent* event) {
    if (event->timerId() != beat_.timerId()) return QWidget::timerEvent(event);
    wander_ += kStep;
    if (wander_ > 1) wander_ -= 1;
    update();
}

} // namespace mirelle::look
