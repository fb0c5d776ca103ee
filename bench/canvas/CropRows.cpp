// A crop, and the moves of the mouse that drag it.
#include "bench/Photograph.h"
#include "bench/Rows.h"
#include "tests/support/TestProgram.h"

#include <cstring>
#include <memory>

namespace mirelle::bench {
namespace {

using test::TestProgram;

constexpr int kLeftButton = 1;
constexpr int kSide = 1000;
constexpr int kMoves = 1000;

void DragACrop(FrmPicX& form) {
    form.MouseDown({kLeftButton, 0, 100, 200});
    form.MouseMove({kLeftButton, 0, 100 + kSide, 200 + kSide});
    form.MouseUp({kLeftButton, 0, 100 + kSide, 200 + kSide});
}

void CopyTheArea(Bitmap& copy) {
    for (int y = 0; y < kSide; ++y)
        std::memcpy(copy.Row(y).data(), &Photograph().At(100, 200 + y), copy.Row(y).size_bytes());
    Keep(copy.Pixels().data());
}

Contest Crop() {
    const auto program = std::make_shared<TestProgram>();
    program->form.Load();
    program->form.Activate();
    program->form.PicImage.Picture = PhotographPicture();
    return {.ours = Timed([program] { DragACrop(program->form); }),
            .peers = {{"a copy of the area", 2, Timed([] {
                           Bitmap copy(kSide, kSide);
                           CopyTheArea(copy);
                       })}},
            .fault = [program]() -> std::string {
                Bitmap copy(kSide, kSide);
                CopyTheArea(copy);
                return program->form.picSmall.Image().Pixels() == copy ? "" : "the crop is not the area";
            }};
}

struct Dragged {
    test::TestProgram program;
    explicit Dragged(int width) {
        FrmPicX& form = program.form;
        form.PicImage.Picture = Picture(Bitmap(width, width * kHeight / kWidth));
        form.Picture = form.PicImage.Picture;
        form.MouseDown({kLeftButton, 0, 10, 10});
    }
};

// A thousand moves, each to another place.
Run MovesOf(const std::shared_ptr<Dragged>& dragged) {
    return Timed([dragged] {
        for (int move = 1; move <= kMoves; ++move)
            dragged->program.form.MouseMove({kLeftButton, 0, static_cast<float>(20 + move), 300});
    });
}

Contest Moves() {
    const auto ours = std::make_shared<Dragged>(kWidth);
    return {.ours = MovesOf(ours),
            .peers = {{"the same over 480 x 270", 1.3, MovesOf(std::make_shared<Dragged>(480))}},
            .fault = [ours]() -> std::string {
                const Shape& line = ours->program.form.Shape1;
                const bool follows = line.Visible && line.Width == 10.0F + kMoves && line.Height == 290.0F;
                return follows ? "" : "the hairline is not where the mouse is";
            }};
}

} // namespace

Group CropRows() {
    return {"Crop", {{"a crop of 1000 x 1000", Crop}, {"1000 moves of the mouse while one is drawn", Moves}}};
}

} // namespace mirelle::bench
