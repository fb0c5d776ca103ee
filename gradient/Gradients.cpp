#include "gradient/Gradients.h"

namespace mirelle {

Gradients::Gradients(FrmPicX&) {}

} // namespace mirelle
