// A thin line along an edge that tells how far long work has come. It shows while work is told and takes no
// room in the mind otherwise: its place stays, empty.
#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace mirelle::look {

class ProgressLine : public QWidget {
    Q_OBJECT
public:
    explicit ProgressLine(QWidget* parent = nullptr);

    // `share` of the work is done: 0 to 1, limited to that.
    void ShowShare(double share);
    // Work goes on and its length is not known: a piece wanders along the line while events are handled.
    void ShowBusy();
    void Clear();

    bool IsShowing() const { return state_ != State::Idle; }
    bool IsBusy() const { return state_ == State::Busy; }
    double Share() const { return share_; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    enum class State { Idle, Share, Busy };
    void Enter(State state);

    State state_ = State::Idle;
    double share_ = 0;
    double wander_ = 0; // where the piece stands, 0 to 1 over one round
    QBasicTimer beat_;
};

} // namespace mirelle::look
