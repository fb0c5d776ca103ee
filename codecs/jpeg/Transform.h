// From a plane's pixels to a component's quantised coefficients: colour, transform, quantisation.
#pragma once

#include "codecs/jpeg/Frame.h"
#include "codecs/jpeg/Geometry.h"
#include "codecs/jpeg/PlaneView.h"

namespace mirelle::jpeg {

// Fills `component`, the one with this index, from the xa by ya pixels of the view: its coefficients and what
// is known of them. Raises error 6 where xa * ya leaves 32 bits, 7 where there is no memory for the
// coefficients.
void TransformComponent(Component& component, std::size_t index, const QuantTable& table,
                        const PlaneSize& plane, const PlaneView& view);

} // namespace mirelle::jpeg
