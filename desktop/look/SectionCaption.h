// The small caption over a section of a card.
#pragma once

#include <QLabel>

namespace mirelle::look {

class SectionCaption : public QLabel {
    Q_OBJECT
public:
    explicit SectionCaption(const QString& text = {}, QWidget* parent = nullptr);
};

} // namespace mirelle::look
