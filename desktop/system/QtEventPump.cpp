#include "desktop/system/QtEventPump.h"

#include <QCoreApplication>
#include <QDate>
#include <QEventLoop>
#include <QThread>
#include <QTime>

#include <algorithm>

namespace mirelle {
namespace {

constexpr unsigned long kRestMs =
    3; // between two looks of a pause, so that waiting does not burn the processor

} // namespace

QtEventPump::QtEventPump(QObject* parent) : QObject(parent) {
    sinceStart_.start();
}

double QtEventPump::Timer() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

CalendarDate QtEventPump::Date() {
    const QDate today = QDate::currentDate();
    return {today.year(), today.month(), today.day()};
}

double QtEventPump::Milliseconds() {
    return static_cast<double>(sinceStart_.nsecsElapsed()) / 1e6;
}

void QtEventPump::DoEvents(PumpSite site) {
    switch (site) {
    case PumpSite::Handler:
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        break;
    case PumpSite::Pause:
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        QThread::msleep(kRestMs);
        break;
    case PumpSite::Pass:
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        break;
    }
}

void QtEventPump::PauseBegins(double seconds) {
    if (pauses_++ == 0) emit Pausing(seconds);
}

void QtEventPump::PauseEnds() {
    pauses_ = std::max(0, pauses_ - 1);
    if (pauses_ == 0) emit Pausing(0);
}

} // namespace mirelle
