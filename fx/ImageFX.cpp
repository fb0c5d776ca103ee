#include "fx/ImageFX.h"

namespace mirelle {

ImageFX::ImageFX(FrmPicX&) {}

} // namespace mirelle
