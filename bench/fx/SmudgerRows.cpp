// The smudgers: all passes beside as many copies of the picture, and what a user's event waits for at most.
#include "bench/Photograph.h"
#include "bench/Rows.h"
#include "fx/KernelTable.h"
#include "tests/support/TestProgram.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace mirelle::bench {
namespace {

using test::TestProgram;
using Smudger = CommandButton FrmPicX::*;

constexpr double kTimesTheCopies = 2;
constexpr double kUnfelt = 0.05; // seconds that nobody feels

std::shared_ptr<TestProgram> ProgramWith(const Picture& picture) {
    auto program = std::make_shared<TestProgram>();
    program->desktop.clipboard.bitmap = picture;
    program->form.Command5.UserClick();
    return program;
}

// On a small picture: all passes of the plain form take their time.
std::string FaultOf(Smudger smudger, Kernel kernel) {
    Bitmap expected = MakePhotograph(96, 54);
    const auto program = ProgramWith(Picture(Bitmap(expected)));
    (program->form.*smudger).UserClick();
    for (int pass = 0; pass < kSmudgerPasses; ++pass) {
        Bitmap next(expected.Width(), expected.Height());
        (kPlainKernels.*kernel)({expected.Pixels(), next.Pixels(), next.Width(), next.Height()}, {});
        expected = std::move(next);
    }
    return program->form.PicImage.Picture().Pixels() == expected ? ""
                                                                 : "not so many passes of the plain kernel";
}

Contest AllPasses(Smudger smudger, Kernel kernel) {
    const auto program = ProgramWith(PhotographPicture());
    const auto copy = std::make_shared<Bitmap>(kWidth, kHeight);
    return {.ours = Timed([=] { (program->form.*smudger).UserClick(); }),
            .peers = {{"151 copies of the picture", kTimesTheCopies, Timed([copy] {
                           for (int pass = 0; pass < kSmudgerPasses; ++pass) {
                               std::memcpy(copy->Pixels().data(), Photograph().Pixels().data(),
                                           kPictureBytes);
                               Keep(copy->Pixels().data());
                           }
                       })}},
            .fault = [=] { return FaultOf(smudger, kernel); }};
}

// The longest time between two looks at what the user does.
double LongestPass(TestProgram& program, Smudger smudger) {
    program.desktop.time.HandlersHaveEnded();
    double longest = 0;
    auto last = std::chrono::steady_clock::now();
    for (int pass = 1; pass <= kSmudgerPasses; ++pass) {
        program.desktop.time.duringPass.emplace(pass, [&] {
            const auto now = std::chrono::steady_clock::now();
            longest = std::max(longest, std::chrono::duration<double>(now - last).count());
            last = now;
        });
    }
    (program.form.*smudger).UserClick();
    return longest;
}

Contest OnePass(Smudger smudger, Kernel kernel) {
    const auto program = ProgramWith(Picture(MakePhotograph(1920, 1080)));
    return {.ours = [=] { return LongestPass(*program, smudger); },
            .peers = {{"50 ms, which nobody feels", 1, [] { return kUnfelt; }}},
            .fault = [=] { return FaultOf(smudger, kernel); }};
}

} // namespace

Group SmudgerRows() {
    Group group{"Image FX: smudgers", {}};
    const auto add = [&](const std::string& way, Smudger smudger, Kernel kernel) {
        group.measures.push_back({way + ", 151 passes", [=] { return AllPasses(smudger, kernel); }});
        group.measures.push_back(
            {way + ", the longest pass on 1920 x 1080", [=] { return OnePass(smudger, kernel); }});
    };
    add("across", &FrmPicX::cmdPointalism, &KernelSet::FXBlurMore);
    add("down", &FrmPicX::cmdPointalismVert, &KernelSet::FXBlurMoreVert);
    return group;
}

} // namespace mirelle::bench
