#include "canvas/Canvas.h"

namespace mirelle {

Canvas::Canvas(FrmPicX&) {}

} // namespace mirelle
