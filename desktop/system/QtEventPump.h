// The clock, and the pump that lets other events run while a handler is at work.
#pragma once

#include "forms/ports/Time.h"

#include <QElapsedTimer>
#include <QObject>

namespace mirelle {

class QtEventPump : public QObject, public EventPump {
    Q_OBJECT

public:
    explicit QtEventPump(QObject* parent = nullptr);

    double Timer() override; // by the local clock
    CalendarDate Date() override;
    double Milliseconds() override;
    // In passing, only what draws runs: keys and mouse wait for the end of the handler, in their order. In
    // pauses and between passes everything runs.
    void DoEvents(PumpSite site) override;
    void PauseBegins(double seconds) override;
    void PauseEnds() override;

signals:
    // A pause of so many seconds began while none was going; 0 when it has ended.
    void Pausing(double seconds);

private:
    QElapsedTimer sinceStart_;
    int pauses_ = 0;
};

} // namespace mirelle
