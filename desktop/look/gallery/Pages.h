// The pages of the gallery: everything that the look can show, for looking at.
#pragma once

class QWidget;

namespace mirelle::look {

QWidget* MakeControlsPage(); // every control in every state
QWidget* MakeIconsPage();    // every drawing at its own size and twice that
QWidget* MakePanelPage();    // cards over a picture, as the window has them
QWidget* MakeDialogsPage();  // message box, menu, tool tip

} // namespace mirelle::look
