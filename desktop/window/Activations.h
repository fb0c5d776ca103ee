// Tells the returns of the user to the window from the dialogs in between: a message box of the program
// itself takes the focus and gives it back, and that is no return.
#pragma once

#include <QObject>

class QWindow;
class QWidget;

namespace mirelle {

class Activations : public QObject {
    Q_OBJECT

public:
    explicit Activations(QWidget& window);

    // The first activation is told by whoever shows the window.
    void NoteFirst() { away_ = false; }

signals:
    void Activated();

private:
    void FollowFocusWindow(QWindow* focused);

    QWidget& window_;
    bool away_ = true;
};

} // namespace mirelle
