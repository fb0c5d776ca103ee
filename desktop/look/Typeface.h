// The type of the window: the system's own, in the two sizes of the tokens.
#pragma once

#include <QFont>

class QWidget;

namespace mirelle::look {

// The system's font at 13 pixels. A system without any font at all gets the one that the program carries,
// where it carries one (it does outside of Windows).
QFont BodyFont();

enum class TextRank { Body, Note };

// Body: 13 pixels, text ink. Note: 11 pixels, quiet ink.
void SetTextRank(QWidget& widget, TextRank rank);

} // namespace mirelle::look
