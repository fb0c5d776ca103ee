// Fits pictures to the gradient's boxes.
//
// A slider that moves fits the same pictures to the same boxes at every step. A stretch is made once and
// shared as long as picture and size stay what they were.
#pragma once

#include "forms/Picture.h"

#include <array>

namespace mirelle {

class PictureBox;

class StretchToFit {
public:
    // Paints the picture over the whole box, stretched, and makes that the box's picture. The empty picture
    // leaves the box what it shows.
    void operator()(PictureBox& target, const Picture& picture);

private:
    struct Stretched {
        Picture source;
        Picture result;
    };
    const Picture* Known(const Picture& picture, int width, int height) const;

    // The Canvas Image's and the Gradient Image's.
    std::array<Stretched, 2> made_;
    std::size_t oldest_ = 0;
};

} // namespace mirelle
