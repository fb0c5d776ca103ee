#include "gradient/GradientSources.h"

#include "app/FrmPicX.h"
#include "gradient/GradientBands.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace mirelle {
namespace {

constexpr int kSwapBoth = 0;
constexpr int kMaterialToCanvas = 1;
constexpr int kMaterialToGradient = 2;

} // namespace

GradientSources::GradientSources(FrmPicX& form) : form_(form) {
    const Picture standard = DefaultGradientPicture();
    for (PictureBox* box : {&form_.Picture6, &form_.Picture5, &form_.pic2grad})
        box->Picture = standard;
    form_.ckGradPic.OnClick([this](int index) { ToggleFileImage(index); });
    form_.cmdSwapPic.OnClick([this](int index) { Swap(index); });
    form_.cmdGradReset.Click.Connect([this] { Reset(); });
}

void GradientSources::ToggleFileImage(int index) {
    PictureBox& box = index == 0 ? form_.pic2grad : form_.pic1grad;
    if (form_.ckGradPic(index).Value == kChecked) {
        form_.Picture5.Picture = box.Picture;
        form_.Picture5.Refresh();
        ResumeNext([&] { box.Picture = form_.ports.loader.LoadPicture(form_.CurrentImagePath.Text()); });
    } else {
        box.Picture = form_.Picture5.Picture;
    }
    RerunGradient();
}

void GradientSources::RerunGradient() {
    if (form_.GradDirectionV) form_.cmdGradV(kVertical).Click();
    if (form_.GradDirectionH) form_.cmdGradV(kHorizontal).Click();
}

void GradientSources::Swap(int index) {
    if (index == kSwapBoth) SwapPictures();
    if (index == kMaterialToCanvas) ResumeNext([this] { form_.pic1grad.Picture = form_.picSmall.Image(); });
    if (index == kMaterialToGradient) ResumeNext([this] { form_.pic2grad.Picture = form_.picSmall.Image(); });
    form_.cmdGradV(kVertical).Click();
}

void GradientSources::SwapPictures() {
    for (PictureBox* box : {&form_.PicSwap1, &form_.PicSwap2}) {
        box->SizeInPixels(form_.Picture4.PixelWidth(), form_.Picture4.PixelHeight());
    }
    form_.PicSwap1.Picture = form_.pic1grad.Picture;
    form_.PicSwap2.Picture = form_.pic2grad.Picture;
    form_.pic1grad.Picture = form_.PicSwap2.Picture;
    form_.pic2grad.Picture = form_.PicSwap1.Picture;
}

void GradientSources::Reset() {
    form_.pic2grad.Picture = form_.Picture6.Picture;
    form_.pic2grad.Refresh();
    form_.cmdGradV(kVertical).Click();
}

Picture DefaultGradientPicture() {
    struct Stop {
        double at, red, green, blue;
    };
    constexpr std::array kDusk = {Stop{0.00, 22, 30, 66}, Stop{0.35, 84, 72, 130}, Stop{0.60, 196, 104, 122},
                                  Stop{0.80, 244, 164, 110}, Stop{1.00, 255, 226, 168}};
    constexpr int kSide = 256;
    Bitmap sky(kSide, kSide);
    for (int y = 0; y < kSide; ++y) {
        const double at = static_cast<double>(y) / (kSide - 1);
        const auto upper =
            std::find_if(kDusk.begin() + 1, kDusk.end() - 1, [at](const Stop& s) { return at <= s.at; });
        const auto lower = upper - 1;
        const double share = (at - lower->at) / (upper->at - lower->at);
        const auto mix = [share](double from, double to) {
            return static_cast<int>(std::lround(from + (to - from) * share));
        };
        const Pixel pixel = PixelOf(
            RGB(mix(lower->red, upper->red), mix(lower->green, upper->green), mix(lower->blue, upper->blue)));
        std::ranges::fill(sky.Row(y), pixel);
    }
    return Picture(std::move(sky));
}

} // namespace mirelle
