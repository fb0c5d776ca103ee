#include "forms/PictureBox.h"

#include "forms/Numbers.h"
#include "forms/RunTimeError.h"

namespace mirelle {

namespace {

double PlaceOf(float measure, ScaleUnit unit) {
    return unit == ScaleUnit::Twips ? double{measure} / kTwipsPerPixel : double{measure};
}

} // namespace

int PixelsOf(float measure, ScaleUnit unit) {
    return ToLong(PlaceOf(measure, unit));
}

float MeasureOf(int pixels, ScaleUnit unit) {
    return unit == ScaleUnit::Twips ? static_cast<float>(pixels) * kTwipsPerPixel
                                    : static_cast<float>(pixels);
}

PictureBox::PictureBox(Form& form, std::string name, Units units)
    : Control(form, std::move(name)), AutoSize(*this, units.autoSize), units_(units) {
    // A size that pixels can't tell is refused ahead of the change, as a negative one is.
    const auto refuse = [outer = units.outer](float size) {
        RefuseNegative(size);
        PixelsOf(size, outer);
    };
    Width.SetGuard(refuse);
    Height.SetGuard(refuse);
    Width.OnChange([this] { FollowSize(); });
    Height.OnChange([this] { FollowSize(); });
    BackColor.OnChange([this] { surface_.SetBackground(BackColor); });
    AutoSize.OnChange([this] { TakePictureSize(); });
    surface_.SetBackground(BackColor);
}

void PictureBox::AssignPicture(mirelle::Picture picture) {
    surface_.Assign(std::move(picture));
    TakePictureSize();
    TellWatchers();
    Change();
}

void PictureBox::TakePictureSize() {
    const mirelle::Picture& picture = surface_.Assigned();
    if (!AutoSize || picture.IsEmpty()) return;
    Width = MeasureOf(picture.Width(), units_.outer);
    Height = MeasureOf(picture.Height(), units_.outer);
}

void PictureBox::SizeInPixels(int width, int height) {
    ResumeNext([&] { Height = MeasureOf(height, units_.outer); });
    ResumeNext([&] { Width = MeasureOf(width, units_.outer); });
}

void PictureBox::FollowSize() {
    surface_.Resize(PixelsOf(Width, units_.outer), PixelsOf(Height, units_.outer));
}

Color PictureBox::Point(float x, float y) const {
    return surface_.Point(PlaceOf(x, units_.inner), PlaceOf(y, units_.inner));
}

void PictureBox::Cls() {
    surface_.Clear();
    TellWatchers();
}

void PictureBox::PaintPicture(const mirelle::Picture& source, float left, float top, float width,
                              float height, float sourceLeft, float sourceTop) {
    const PixelArea from{PixelsOf(sourceLeft, units_.inner), PixelsOf(sourceTop, units_.inner),
                         PixelsOf(width, units_.inner), PixelsOf(height, units_.inner)};
    surface_.Copy(source.Pixels(), from, PixelsOf(left, units_.inner), PixelsOf(top, units_.inner));
    TellWatchers();
}

void PictureBox::StretchPicture(const mirelle::Picture& source) {
    if (source.IsEmpty()) throw RunTimeError(ErrorNumber::InvalidPicture);
    surface_.Stretch(source);
    TellWatchers();
}

void PictureBox::ShowImage(const mirelle::Picture& image) {
    surface_.Show(image);
    TellWatchers();
}

Bitmap& PictureBox::Paint() {
    TellWatchers();
    return surface_.Paint();
}

void PictureBox::PaintRows(const Surface::PaintRow& paint) {
    TellWatchers();
    surface_.PaintRows(paint);
}

ImageControl::ImageControl(Form& form, std::string name) : Control(form, std::move(name)) {}

void ImageControl::AssignPicture(mirelle::Picture picture) {
    picture_ = std::move(picture);
    TellWatchers();
}

} // namespace mirelle
