// A click on an effect's button, from the click to the new canvas picture, beside the kernel alone.
#include "bench/Photograph.h"
#include "bench/Rows.h"
#include "fx/KernelTable.h"
#include "tests/support/TestProgram.h"

#include <memory>

namespace mirelle::bench {
namespace {

constexpr double kTimesTheKernel = 2;

Contest Prepare(const KernelButton& button) {
    const auto program = std::make_shared<test::TestProgram>();
    program->desktop.clipboard.bitmap = PhotographPicture();
    program->form.Command5.UserClick();
    Control& control = *program->form.Find(std::string(button.control));
    const auto alone = std::make_shared<Bitmap>(kWidth, kHeight);
    return {.ours = Timed([program, &control] { control.UserClick(); }),
            .peers = {{"the kernel alone", kTimesTheKernel, Timed([alone, &button] {
                           (ChosenKernels().*button.kernel)(
                               {Photograph().Pixels(), alone->Pixels(), kWidth, kHeight}, button.arguments);
                       })}},
            .fault = [program, alone]() -> std::string {
                const bool same = program->form.PicImage.Picture().Pixels() == *alone;
                return same ? "" : "the canvas is not what the kernel gives";
            }};
}

} // namespace

Group EffectClickRows() {
    Group group{"Image FX: a click on a kernel's button", {}};
    for (const KernelButton& button : kKernelButtons)
        group.measures.push_back({std::string(button.toolTip), [&button] { return Prepare(button); }});
    return group;
}

} // namespace mirelle::bench
