// The two layers of a picture surface: the assigned Picture, and the persistent Image, which shows the
// picture from the top-left corner over the background colour plus whatever was painted since. Whatever needs
// memory raises error 7 where that can't be had, and nothing has changed then.
//
// The image's memory is made when it is first needed: a surface that nobody reads or paints costs nothing,
// and one that shows just a picture of its own size shares that picture's pixels. Painting takes a copy first
// where pixels are shared.
#pragma once

#include "forms/Picture.h"
#include "forms/PixelArea.h"

#include <functional>
#include <memory>
#include <span>

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
    // What is to be seen, as long as the background is seen wherever the picture ends: the image, but where
    // nothing was painted the assigned picture itself, for which no memory is made.
    Picture Seen() const { return image_ ? Picture(image_) : picture_; }
    // The persistent image to paint in.
    Bitmap& Paint();
    // Paints row after row from the top: each is told what the row was and writes all of it. The two may be
    // the same memory; where they are not, an image that has to be made first is made as it is painted, and a
    // large one goes through the memory once.
    using PaintRow = std::function<void(int y, std::span<const Pixel> was, std::span<Pixel> row)>;
    void PaintRows(const PaintRow& paint);
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
    // What the image has in row y as long as nothing is painted: the picture's own row, or else one that is
    // written into the memory given.
    std::span<const Pixel> ComposedRow(int y, std::span<Pixel> row) const;

    int width_ = 0;
    int height_ = 0;
    Color background_ = 0xC0C0C0;
    Picture picture_;
    mutable std::shared_ptr<Bitmap> image_; // null until it is needed
    bool painted_ =
        false; // image_ holds more than picture and background: looking at it alone changes nothing
};

} // namespace mirelle
