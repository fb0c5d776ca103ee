// A panel over the canvas: opaque, rounded, with a small caption where it has one. Mouse events stop at a
// card, so that a press beside its controls does not start anything on the canvas beneath.
#pragma once

#include <QRegion>
#include <QWidget>

namespace mirelle::look {

class Card : public QWidget {
    Q_OBJECT
public:
    explicit Card(const QString& caption = {}, QWidget* parent = nullptr);

    // All but its corners, in its parent's places: nothing beneath is to be seen there.
    QRegion OpaqueRegion() const;

    const QString& Caption() const { return caption_; }
    void SetCaption(const QString& caption); // also the accessible name
    // Fills the card inside of its margins and beneath its caption; `body` loses margins of its own.
    void SetBody(QLayout* body);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QFont CaptionFont() const;
    void FitMargins();

    QString caption_;
};

} // namespace mirelle::look
