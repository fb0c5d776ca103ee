// One line of text that is cut in the middle where it is too long, as paths are. Where it is cut, the tool
// tip begins with the whole text.
#pragma once

#include <QWidget>

namespace mirelle::look {

class ElidedLabel : public QWidget {
    Q_OBJECT
public:
    explicit ElidedLabel(const QString& text = {}, QWidget* parent = nullptr);

    const QString& Text() const { return text_; }
    void SetText(const QString& text); // also the accessible name
    QString ShownText() const;
    // What the tip says now: the whole text ahead of the widget's own tool tip, where the text is cut.
    QString Tip() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void DoubleClicked();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QString text_;
};

} // namespace mirelle::look
