// The keys that run the clicks of buttons. They rest while a text field has the focus, which has uses of its
// own for them.
#pragma once

#include <QObject>

#include <vector>

class QShortcut;
class QWidget;

namespace mirelle {

class Binder;

class Shortcuts : public QObject {
    Q_OBJECT

public:
    Shortcuts(Binder& binder, QWidget& window);

private:
    void FollowFocus(const QWidget* focus);

    std::vector<QShortcut*> shortcuts_;
};

} // namespace mirelle
