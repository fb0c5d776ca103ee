// The splash as a window: a small frameless card in the middle of the screen that the timer takes away.
// A click on it, or Space, holds it and lets it go on.
#pragma once

#include "app/Splash.h"

#include <QTimer>
#include <QWidget>

class QLabel;

namespace mirelle {

class Dialogs;

class SplashWindow : public QWidget {
    Q_OBJECT

public:
    // Shown and hidden as the splash says.
    SplashWindow(Splash& splash, Dialogs& dialogs);

signals:
    // It has been painted for the first time.
    void Seen();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildWords();
    QLabel* Line(Label& control);
    void FollowForm();
    void ShowAndBuildWords();
    void FollowTimer();
    void ToTheMiddle();

    Splash& splash_;
    Dialogs& dialogs_;
    QTimer tick_;
    bool pressed_ = false;
    bool worded_ = false;
    bool painted_ = false;
};

} // namespace mirelle
