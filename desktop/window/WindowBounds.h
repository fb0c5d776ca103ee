// Keeps a window on the screens that there are: not larger than its screen at the start, and within reach
// when a screen goes or changes.
#pragma once

#include <QObject>
#include <QRect>
#include <QSize>

class QScreen;
class QWidget;

namespace mirelle {

// A window with its frame, shrunk and moved as little as it takes to lie in the area.
QRect KeptInside(QRect window, const QRect& area);
// Whether the user could still take hold of the window: part of its upper edge lies in one of the areas.
bool IsWithinReach(const QRect& window, const QList<QRect>& areas);

class WindowBounds : public QObject {
    Q_OBJECT

public:
    explicit WindowBounds(QWidget& window);

    // The usual size, or as much of it as the screen has room for.
    static QSize StartSize(const QWidget& window, QSize usual);
    // Once the window has been shown.
    void FollowScreens();

signals:
    // The window is on another screen, perhaps one of another scale factor.
    void ScreenChanged();

private:
    void Watch(QScreen* screen);
    void BringBack();

    QWidget& window_;
};

} // namespace mirelle
