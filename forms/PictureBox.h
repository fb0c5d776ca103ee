// Picture boxes and images.
//
// A PictureBox is a Surface in a control. Its outer Width and Height are in the unit of its container, its
// ScaleWidth and ScaleHeight in its own; both are pixels or twips (15 to a pixel). Boxes have no border:
// outer and inner size are the same number of pixels.
#pragma once

#include "forms/Control.h"
#include "forms/Surface.h"

namespace mirelle {

enum class ScaleUnit { Twips = 1, Pixels = 3 }; // the values that ScaleMode shows

// Pixels of a measure in a unit, to the nearest whole one.
int PixelsOf(float measure, ScaleUnit unit);
float MeasureOf(int pixels, ScaleUnit unit);

// The assigned picture as a property: `box.Picture = other.Picture` shares the pixels.
template <class Box>
class PictureProperty {
public:
    explicit PictureProperty(Box& box) : box_(box) {}
    PictureProperty(const PictureProperty&) = delete;

    const mirelle::Picture& operator()() const { return box_.AssignedPicture(); }
    operator const mirelle::Picture&() const { return (*this)(); } // NOLINT(google-explicit-constructor)
    PictureProperty& operator=(mirelle::Picture picture) {
        box_.AssignPicture(std::move(picture));
        return *this;
    }
    PictureProperty& operator=(const PictureProperty& other) { return *this = mirelle::Picture(other()); }

private:
    Box& box_;
};

class PictureBox : public Control {
public:
    struct Units {
        ScaleUnit outer = ScaleUnit::Pixels; // of Left, Top, Width, Height
        ScaleUnit inner = ScaleUnit::Pixels; // of ScaleWidth, ScaleHeight
        bool autoSize = true;
    };
    PictureBox(Form& form, std::string name, Units units);

    PictureProperty<PictureBox> Picture{*this};
    // The box takes the size of a picture assigned to it; switching it on takes the present picture's size.
    Property<bool> AutoSize;
    Event<> Change; // a picture was assigned

    mirelle::Picture Image() const { return surface_.Image(); }
    bool IsBlank() const { return surface_.IsBlank(); } // shows its background alone
    float ScaleWidth() const { return MeasureOf(surface_.Width(), units_.inner); }
    float ScaleHeight() const { return MeasureOf(surface_.Height(), units_.inner); }
    ScaleUnit ScaleMode() const { return units_.inner; }
    int PixelWidth() const { return surface_.Width(); }
    int PixelHeight() const { return surface_.Height(); }
    // Sets Height and Width to so many pixels, each as a statement of its own.
    void SizeInPixels(int width, int height);

    // The colour at a place in the box's scale, kOffPicture outside.
    Color Point(float x, float y) const;
    void Cls();
    // PaintPicture with a plain copy: the source area at (sourceLeft, sourceTop), of the same size as the
    // destination, comes to (left, top). Measures are in the box's scale and are rounded to pixels, ties to
    // even. What lies beyond the source or the box is not copied; an empty source copies nothing.
    void PaintPicture(const mirelle::Picture& source, float left, float top, float width, float height,
                      float sourceLeft, float sourceTop);
    // PaintPicture without a source area: the whole source over the whole box, stretched where their sizes
    // differ. An empty source raises error 481.
    void StretchPicture(const mirelle::Picture& source);
    // Paints a picture from the top-left corner on; one of the box's own size is shared, not copied.
    void ShowImage(const mirelle::Picture& image);
    // Paints the image row after row from the top (see Surface::PaintRows).
    void PaintRows(const Surface::PaintRow& paint);
    // The image to paint in, pixel by pixel.
    Bitmap& Paint();

    const mirelle::Picture& AssignedPicture() const { return surface_.Assigned(); }
    void AssignPicture(mirelle::Picture picture);
    // A place in the box from device pixels, in its own scale.
    float ScaleFromPixels(float pixels) const {
        return units_.inner == ScaleUnit::Twips ? pixels * kTwipsPerPixel : pixels;
    }

private:
    void TakePictureSize();
    void FollowSize();

    Units units_;
    Surface surface_;
};

// An image stretches what it shows to its size; it has no surface of its own.
class ImageControl : public Control {
public:
    ImageControl(Form& form, std::string name);

    PictureProperty<ImageControl> Picture{*this};
    Property<bool> Stretch{*this, true};

    const mirelle::Picture& AssignedPicture() const { return picture_; }
    void AssignPicture(mirelle::Picture picture);

private:
    mirelle::Picture picture_;
};

} // namespace mirelle
