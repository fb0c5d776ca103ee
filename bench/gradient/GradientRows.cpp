// The image gradient beside one plain blend of the whole picture over the same canvas. The result has to be
// that of the bands drawn one by one.
#include "bench/Photograph.h"
#include "bench/Rows.h"
#include "forms/AlphaBlend.h"
#include "gradient/GradientBands.h"
#include "tests/support/TestPictures.h"
#include "tests/support/TestProgram.h"

#include <memory>

namespace mirelle::bench {
namespace {

constexpr double kTimesTheBlend = 1.5;
constexpr std::uint8_t kSomeAlpha = 100;

struct Pictures {
    const Bitmap& source = Photograph();
    Bitmap destination = test::SmoothBitmap(kWidth, kHeight);
};

Peer OneBlend() {
    const auto pictures = std::make_shared<Pictures>();
    return {"one blend of the whole picture", kTimesTheBlend, Timed([pictures] {
                const PixelArea all{0, 0, kWidth, kHeight};
                AlphaBlend(pictures->destination, all, pictures->source, all, kSomeAlpha);
            })};
}

// Where the sliders stand, in parts of the picture's length.
struct Places {
    double start;
    double end;
};

std::vector<Band> BandsBetween(const Places& places, int direction) {
    const double length = direction == kHorizontal ? kWidth : kHeight;
    const BandSizes sizes{double{kWidth}, double{kHeight}, double{kWidth}, double{kHeight}};
    return BandsOf(sizes, places.start * length, places.end * length, direction);
}

// The bands alone, drawn over a picture in memory.
Contest Bands(const Places& places, int direction) {
    const auto pictures = std::make_shared<Pictures>();
    return {.ours = Timed(
                [=] { DrawBands(pictures->destination, pictures->source, BandsBetween(places, direction)); }),
            .peers = {OneBlend()},
            .fault = [=]() -> std::string {
                Pictures fast;
                Pictures plain;
                DrawBands(fast.destination, fast.source, BandsBetween(places, direction));
                DrawBandsPlain(plain.destination, plain.source, BandsBetween(places, direction));
                return fast.destination == plain.destination ? "" : "not the bands as drawn one by one";
            }};
}

// A step of the start slider in the program, to the new canvas picture: all that a user waits for.
Contest Slider(int direction) {
    const auto program = std::make_shared<test::TestProgram>();
    FrmPicX& form = program->form;
    for (PictureBox* box : {&form.pic1grad, &form.pic2grad, &form.picDest})
        box->SizeInPixels(kWidth, kHeight);
    form.pic1grad.Picture = Picture(test::SmoothBitmap(kWidth, kHeight));
    form.pic2grad.Picture = PhotographPicture();
    form.cmdGradV(direction).UserClick();
    const auto place = std::make_shared<int>(0);
    return {.ours = Timed([program, place] {
                *place = (*place + 1) % (kHeight / 2);
                program->form.hStart.UserDrag(static_cast<std::int16_t>(*place));
            }),
            .peers = {OneBlend()},
            .fault = [=]() -> std::string {
                FrmPicX& shown = program->form;
                Bitmap plain = test::SmoothBitmap(kWidth, kHeight);
                const BandSizes sizes{double{kWidth}, double{kHeight}, double{kWidth}, double{kHeight}};
                DrawBandsPlain(plain, Photograph(),
                               BandsOf(sizes, shown.hStart.Value(), shown.hEnd.Value(), direction));
                return shown.PicImage.Picture().Pixels() == plain ? "" : "not the bands as drawn one by one";
            }};
}

} // namespace

Group GradientRows() {
    Group group{"Image gradient", {}};
    for (const int direction : {kHorizontal, kVertical}) {
        const std::string way = direction == kHorizontal ? "across" : "down";
        group.measures.push_back({"a step of the slider, " + way, [=] { return Slider(direction); }});
        for (const auto& [name, places] :
             {std::pair{"over all", Places{0, 1}}, std::pair{"over the middle half", Places{0.25, 0.75}},
              std::pair{"over a twentieth", Places{0.5, 0.55}}}) {
            group.measures.push_back({"bands " + way + ' ' + name,
                                      [places = places, direction] { return Bands(places, direction); }});
        }
    }
    return group;
}

} // namespace mirelle::bench
