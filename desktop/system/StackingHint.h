// Keeps a window above all others, or lets it go, without hiding it for a moment.
#pragma once

class QWidget;

namespace mirelle {

// Works on a window that is shown and on one that is still to be shown. Returns whether the system took the
// wish.
bool KeepAbove(QWidget& window, bool above);

} // namespace mirelle
