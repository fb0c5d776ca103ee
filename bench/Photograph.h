// The picture that everything is measured on. Unless told otherwise it is like a photograph, and computed
// from its size and a seed alone.
#pragma once

#include "forms/Picture.h"

namespace mirelle::bench {

constexpr int kWidth = 3840;
constexpr int kHeight = 2160;
constexpr std::size_t kPictureBytes = std::size_t{4} * kWidth * kHeight;

// What the photographs are made from, to be told before the first is made. From a seed: edges of many shapes
// over gradients, and a sensor's noise over all. From a picture: the picture laid side by side as often as it
// takes, and cut there; an empty one is refused by std::runtime_error.
void MakePhotographsFrom(unsigned seed);
void MakePhotographsFrom(Bitmap picture);

// The fourth bytes are 255.
Bitmap MakePhotograph(int width, int height);

// The one of kWidth x kHeight, made once.
const Bitmap& Photograph();

// The program's handle on it.
const Picture& PhotographPicture();

} // namespace mirelle::bench
