// The two layers of a picture surface: the assigned Picture, and the persistent Image, which shows the
// picture from the top-left corner over the background colour plus whatever was painted since.
//
// The image's memory is made when it is first needed: a surface that nobody reads or paints costs nothing,
// and one that shows just a picture of its own size shares that picture's pixels. Painting takes a copy first
// where pixels are shared.
#pragma once

#include "forms/Picture.h"
#include "forms/PixelArea.h"

#include <memory>

namespace mirelle {

class Surface {
public:
    int Width() const { return width_; }
    int Height() const { return height_; }
    const Picture& Assigned() const { return picture_; }
    // Nothing but the background: no picture assigned, nothing painted.
    bool IsBlank() const { return picture_.IsEmpty() && !painted_; }

    // What was painted stays from the top-left corner; new area shows the background. Negative sizes count as
    // 0.
    void Resize(int width, int height);
    // Replaces the picture; what was painted goes. The size stays.
    void Assign(Picture picture);
    // A new background; what was painted goes.
    void SetBackground(Color background);
    // Cls: what was painted goes, the picture stays.
    void Clear();

    // The persistent image, sharing its pixels.
    Picture Image() const;
    // The persistent image to paint in.
    Bitmap& Paint();
    // The colour at a pixel of the image, kOffPicture outside, however far. Places between pixels count to
    // the nearest one, ties to the even one.
    Color Point(double x, double y) const;

    // Copies the source's pixels of `from` to (left, top), clipped to what exists on both sides.
    void Copy(const Bitmap& source, PixelArea from, int left, int top);
    // Paints a picture from the top-left corner on, as Copy does; one of the surface's own size is shared.
    void Show(const Picture& image);
    // Paints the whole picture over the whole surface, in halftone mode.
    void Stretch(const Picture& picture);

private:
    std::shared_ptr<Bitmap> Compose() const;

    int width_ = 0;
    int height_ = 0;
    Color background_ = 0xC0C0C0;
    Picture picture_;
    mutable std::shared_ptr<Bitmap> image_; // null until it is needed
    bool painted_ =
        false; // image_ holds more than picture and background: looking at it alone changes nothing
};

} // namespace mirelle
