// A picture as an image that Qt paints, over the same pixels: nothing is copied or converted. The fourth byte
// of the pixels does not count.
#pragma once

#include "forms/Picture.h"

#include <QImage>

namespace mirelle {

// The image keeps the picture's pixels alive as long as any copy of it lives. Null for the empty picture.
QImage ImageOver(const Picture& picture);

} // namespace mirelle
