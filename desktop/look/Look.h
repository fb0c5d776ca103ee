// Gives an application its look: style, palette, type, tool tips and icon. Once, before the first window.
#pragma once

class QApplication;

namespace mirelle::look {

void ApplyLook(QApplication& application);

} // namespace mirelle::look
