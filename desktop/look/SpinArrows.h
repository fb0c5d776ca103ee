// Two arrows without a text box of their own: a step up or down for each press, and one after the other while
// held. The arrow keys do the same.
#pragma once

#include <QBasicTimer>
#include <QStyleOptionSpinBox>
#include <QWidget>

namespace mirelle::look {

class SpinArrows : public QWidget {
    Q_OBJECT
public:
    explicit SpinArrows(QWidget* parent = nullptr);

    bool IsHeld() const { return held_ != QStyle::SC_None; }
    QSize sizeHint() const override;

signals:
    void Stepped(int direction); // +1 or -1

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    QStyleOptionSpinBox Option() const;
    QStyle::SubControl PartAt(QPoint place) const;
    void Step(QStyle::SubControl part);
    void Release();

    QStyle::SubControl hovered_ = QStyle::SC_None;
    QStyle::SubControl held_ = QStyle::SC_None;
    QBasicTimer repeat_;
};

} // namespace mirelle::look
