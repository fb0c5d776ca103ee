#include "desktop/look/SectionCaption.h"

#include "desktop/look/Typeface.h"

namespace mirelle::look {

SectionCaption::SectionCaption(const QString& text, QWidget* parent) : QLabel(text, parent) {
    SetTextRank(*this, TextRank::Note);
}

} // namespace mirelle::look
