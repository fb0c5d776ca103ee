// From a plane's pixels to what a component's blocks are coded as: colour, transform, quantisation, symbols.
#pragma once

#include "codecs/jpeg/Frame.h"
#include "codecs/jpeg/Geometry.h"
#include "codecs/jpeg/PlaneView.h"

namespace mirelle::jpeg {

// Fills `component`, the one with this index, from the xa by ya pixels of the view; an error leaves it as it
// was. Raises error 6 where xa * ya leaves 32 bits, 7 where there is no memory for what the blocks are coded
// as.
void TransformComponent(Component& component, std::size_t index, const QuantTable& table,
                        const PlaneSize& plane, const PlaneView& view);

} // namespace mirelle::jpeg
