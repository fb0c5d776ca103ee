// A panel: an opaque card over the canvas with the layout of its contents.
#pragma once

#include "desktop/look/Card.h"
#include "desktop/window/Parts.h"

namespace mirelle {

class Panel : public look::Card {
    Q_OBJECT

public:
    explicit Panel(QWidget* parent);

    // Ties the panel to its frame: shown with it, under its caption.
    void Bind(Binder& binder, Frame& frame);
    QVBoxLayout& Contents() { return *contents_; }

signals:
    void VisibilityChanged();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QVBoxLayout* contents_; // laid out inside the card
};

} // namespace mirelle
