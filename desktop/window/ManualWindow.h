// The manual's form as a window: two buttons that open the manual, from the disk and on the web.
#pragma once

#include "desktop/binding/Binder.h"

#include <QWidget>

class QPushButton;

namespace mirelle {

class UserManual;

class ManualWindow : public QWidget {
    Q_OBJECT

public:
    // Shown and hidden as the manual's form says. `mainWindow` tells the screen that it comes to.
    ManualWindow(UserManual& manual, FrmPicX& mainForm, const QWidget& mainWindow);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QPushButton* Button(CommandButton& control);
    void FollowForm();

    UserManual& manual_;
    Binder binder_;
    const QWidget& mainWindow_;
};

} // namespace mirelle
