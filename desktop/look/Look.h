// Gives an application its look.
#pragma once

class QApplication;

namespace mirelle::look {

// Style, palette, type and tool tips. Once, before the first window.
void ApplyLook(QApplication& application);

// The icon of all windows, those that are there already as well. It is drawn in many sizes, which takes a few
// milliseconds that the first window need not wait for.
void ApplyIcon();

} // namespace mirelle::look
