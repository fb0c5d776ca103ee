// The pages of the gallery: everything that the look can show, for looking at.
#pragma once

class QWidget;

namespace mirelle::look {

QWidget* MakeIconsPage();

} // namespace mirelle::look
