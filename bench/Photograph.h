// The picture that everything is measured on: like a photograph, computed from its size alone.
#pragma once

#include "forms/Picture.h"

namespace mirelle::bench {

constexpr int kWidth = 3840;
constexpr int kHeight = 2160;
constexpr std::size_t kPictureBytes = std::size_t{4} * kWidth * kHeight;

// Edges of many shapes over gradients, and a sensor's noise over all. The fourth bytes are 255.
Bitmap MakePhotograph(int width, int height);

// The one of kWidth x kHeight, made once.
const Bitmap& Photograph();

// The program's handle on it.
const Picture& PhotographPicture();

} // namespace mirelle::bench
