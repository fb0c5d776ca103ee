// The mouse on a widget becomes the mouse events of its control. Positions are device pixels from the
// widget's top-left corner.
#pragma once

#include "forms/Control.h"

#include <QObject>

class QMouseEvent;
class QWidget;

namespace mirelle {

class Dialogs;

// 0 none, 1 left, 2 right: what handlers are told. Other buttons count as none.
int ButtonNumber(Qt::MouseButtons buttons);
int ShiftNumber(Qt::KeyboardModifiers modifiers); // 1 Shift, 2 Ctrl, 4 Alt, added up

class ControlEvents : public QObject {
    Q_OBJECT

public:
    // Which of a widget's events go to the control.
    enum class Take {
        Mouse,     // down, move and up
        DblClick,  // and double clicks, in the place of the second down
        FullClick, // and a Click when the left button is let go over it: for what is no button of itself
    };
    // Filters the widget's events as long as it lives; switches mouse tracking on.
    ControlEvents(Control& control, QWidget& widget, Dialogs& dialogs, Take take);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Run(const std::function<void()>& action);
    MouseArgs Args(const QMouseEvent& event, int button) const;
    void Release(const QMouseEvent& event);

    Control& control_;
    QWidget& widget_;
    Dialogs& dialogs_;
    Take take_;
    bool pressed_ = false;
};

} // namespace mirelle
