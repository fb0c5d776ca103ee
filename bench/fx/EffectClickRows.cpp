// What a user waits for: a click on an effect's button or a step of its slider, up to the new canvas picture,
// beside the effect alone, and the point effects beside a copy of the picture as well.
#include "bench/fx/Effect.h"
#include "bench/Photograph.h"
#include "bench/Rows.h"
#include "fx/Contrast.h"
#include "tests/support/TestProgram.h"

#include <memory>

namespace mirelle::bench {
namespace {

using test::TestProgram;

constexpr double kTimesTheEffect = 2;

std::shared_ptr<TestProgram> ProgramWithPhotograph() {
    auto program = std::make_shared<TestProgram>();
    program->desktop.clipboard.bitmap = PhotographPicture();
    program->form.Command5.UserClick();
    return program;
}

Peer Alone(const EffectRun& effect) {
    return {"the effect alone", kTimesTheEffect, Timed(effect.work)};
}

const Bitmap& Canvas(const TestProgram& program) {
    return program.form.PicImage.Picture().Pixels();
}

// A kernel begins from the picture that is retained, which stays.
Contest PrepareKernel(const KernelButton& button) {
    const auto program = ProgramWithPhotograph();
    Control& control = *program->form.Find(std::string(button.control));
    const EffectRun alone = RunOf(button, FXForm::Fast);
    return {.ours = Timed([program, &control] { control.UserClick(); }),
            .peers = {Alone(alone)},
            .fault = [=]() -> std::string {
                alone.work();
                return Canvas(*program) == alone.result() ? "" : "the canvas is not what the kernel gives";
            }};
}

// A change of the canvas that begins from the canvas as it stands: `change` is the user's, `effect` what it
// does to the picture, in the plain form.
Contest PrepareChange(const std::shared_ptr<TestProgram>& program, const std::function<void()>& change,
                      const EffectRun& alone, const EffectOnPictures& effect) {
    return {.ours = Timed(change), .peers = {Alone(alone), OneCopy(0)}, .fault = [=]() -> std::string {
                const Bitmap before = Canvas(*program);
                Bitmap expected(kWidth, kHeight);
                change();
                effect(before, expected);
                return Canvas(*program) == expected ? "" : "the canvas is not what the effect gives";
            }};
}

EffectOnPictures Plainly(PointEffect effect, const PointArguments& arguments) {
    return [=](const Bitmap& from, Bitmap& to) {
        PixelFrame source;
        PixelFrame destination;
        source.SizeFor(kWidth, kHeight);
        destination.SizeFor(kWidth, kHeight);
        GetBitmapBits(from, source);
        (kPlainPoints.*effect)(source, destination, arguments);
        SetBitmapBits(to, destination);
    };
}

Contest PreparePoint(const PointButton& button) {
    const auto program = ProgramWithPhotograph();
    Control& control = *program->form.Find(std::string(button.control));
    return PrepareChange(
        program, [program, &control] { control.UserClick(); },
        RunOf(button.effect, button.arguments, FXForm::Fast), Plainly(button.effect, button.arguments));
}

// To and fro between 1 and -1 for blue, with 5 for green and -5 for red at rest.
Contest PrepareSlider() {
    const auto program = ProgramWithPhotograph();
    program->form.HSColorShift(1).UserSet(5);
    program->form.HSColorShift(2).UserSet(-5);
    const auto arguments = std::make_shared<PointArguments>(PointArguments{.shifts = {1, 5, -5}});
    const auto change = [=] {
        arguments->shifts[0] = static_cast<std::int16_t>(-arguments->shifts[0]);
        program->form.HSColorShift(0).UserSet(arguments->shifts[0]);
    };
    return PrepareChange(program, change, RunOf(&PointSet::ShiftColors, *arguments, FXForm::Fast),
                         [arguments](const Bitmap& from, Bitmap& to) {
                             Plainly(&PointSet::ShiftColors, *arguments)(from, to);
                         });
}

Contest PrepareContrast() {
    const auto program = ProgramWithPhotograph();
    const auto applied = [](FXForm form) {
        return [form](const Bitmap& from, Bitmap& to) {
            Contrast(Variant(Integer(kFastContrast)), form).Apply(from.Pixels(), to.Pixels());
        };
    };
    return PrepareChange(
        program, [program] { program->form.cmdCont33.UserClick(); }, RunOnPictures(applied(FXForm::Fast)),
        applied(FXForm::Plain));
}

} // namespace

Group KernelClickRows() {
    Group group{"Image FX: a click on a kernel's button", {}};
    for (const KernelButton& button : kKernelButtons)
        group.measures.push_back({std::string(button.toolTip), [&button] { return PrepareKernel(button); }});
    return group;
}

Group PointClickRows() {
    Group group{"Image FX: a click on a point effect's button, and what else changes the canvas", {}};
    for (const PointButton& button : kPointButtons)
        group.measures.push_back({std::string(button.toolTip), [&button] { return PreparePoint(button); }});
    group.measures.push_back({"a step of a colour slider", PrepareSlider});
    group.measures.push_back({"contrast of 30 percent", PrepareContrast});
    return group;
}

} // namespace mirelle::bench
