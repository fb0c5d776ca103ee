#include "fx/IMFXModule1.h"

#include "fx/KernelTable.h"
#include "tests/fx/KernelTesting.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/TestPictures.h"

#include <algorithm>
#include <deque>

namespace mirelle::test {
namespace {

// A clock that gives its readings one after the other, and the last one for ever.
class ReadingsClock : public EventPump {
public:
    explicit ReadingsClock(std::deque<double> readings) : readings_(std::move(readings)) {}

    double Timer() override { return 0; }
    CalendarDate Date() override { return {}; }
    double Milliseconds() override {
        const double reading = readings_.front();
        if (readings_.size() > 1) readings_.pop_front();
        return reading;
    }
    void DoEvents(PumpSite) override { ADD_FAILURE() << "a kernel yielded"; }
    void PauseBegins(double) override {}
    void PauseEnds() override {}

private:
    std::deque<double> readings_;
};

TEST(IMFXModule1Test, ARunPaintsTheDestinationAndLeavesTheSource) {
    ReadingsClock clock({0});
    IMFXModule1 module(clock);
    const Bitmap noise = NoiseBitmap(17, 5, 1);
    const Picture source{Bitmap(noise)};
    Picture destination;
    module.Run(&KernelSet::FXLighten, source, destination, {{50}});
    EXPECT_EQ(destination.Pixels(), Painted(kPlainKernels, &KernelSet::FXLighten, noise, {{50}}));
    EXPECT_EQ(source.Pixels(), noise);
    EXPECT_EQ(module.FXWidth, 17);
    EXPECT_EQ(module.FXHeight, 5);
    EXPECT_FALSE(module.FXBusy);
}

TEST(IMFXModule1Test, TwoRunsOnOneSourceDoNotAddUp) {
    ReadingsClock clock({0});
    IMFXModule1 module(clock);
    const Picture source{Bitmap(4, 4, Grey(100))};
    Picture once;
    Picture twice;
    module.Run(&KernelSet::FXLighten, source, once, {{50}});
    module.Run(&KernelSet::FXLighten, source, twice, {{50}});
    EXPECT_EQ(once.Pixels(), Bitmap(4, 4, PaintedGrey(150)));
    EXPECT_EQ(twice.Pixels(), once.Pixels());
}

TEST(IMFXModule1Test, TheFourthByteOfEveryResultIs0) {
    ReadingsClock clock({0});
    IMFXModule1 module(clock);
    const Picture source{NoiseBitmap(31, 12, 2)};
    for (const KernelButton& button : kKernelButtons) {
        Picture destination;
        module.Run(button.kernel, source, destination, button.arguments);
        EXPECT_EQ(destination.Pixels(), WithoutFourth(destination.CopyBitmap())) << button.control;
    }
}

TEST(IMFXModule1Test, TheResultIsTheRoundedTimeBetweenBeginAndEnd) {
    ReadingsClock clock({100.5, 150.7}); // 100, a tie to the even one, and 151
    IMFXModule1 module(clock);
    Picture destination;
    EXPECT_EQ(module.Run(&KernelSet::FXNegate, Picture{Bitmap(1, 1)}, destination), 51);
    EXPECT_EQ(module.FXStartMs, 100);
    EXPECT_EQ(module.FXEndMs, 151);
}

TEST(IMFXModule1Test, AClockBeyond32BitsKeepsTheFormerReading) {
    ReadingsClock clock({10, 20, 3e9});
    IMFXModule1 module(clock);
    Picture destination;
    EXPECT_EQ(module.Run(&KernelSet::FXNegate, Picture{Bitmap(1, 1)}, destination), 10);
    EXPECT_EQ(module.Run(&KernelSet::FXNegate, Picture{Bitmap(1, 1)}, destination), 10);
    EXPECT_EQ(ErrorOf([&] { module.GetTimeMs(); }), ErrorNumber::Overflow);
}

TEST(IMFXModule1Test, BeginMakesADestinationOfTheSourcesSizeAndEndHandsItOver) {
    ReadingsClock clock({0});
    IMFXModule1 module(clock);
    module.BeginFX(Picture{NoiseBitmap(6, 3, 3)});
    EXPECT_EQ(module.DstPix.Width(), 6);
    EXPECT_EQ(module.DstPix.Height(), 3);
    EXPECT_EQ(module.SrcPix.Pixels(), NoiseBitmap(6, 3, 3));
    module.DstPix.At(5, 2) = Pixel{1, 2, 3, 0};
    Picture destination;
    module.EndFX(destination);
    EXPECT_EQ(destination.Pixels().At(5, 2), (Pixel{1, 2, 3, 0}));
    EXPECT_TRUE(module.DstPix.IsEmpty());
}

// Whatever the memory of the destination was before: here that of a large picture which has just gone.
TEST(IMFXModule1Test, WhatAKernelLeavesAloneIsBlack) {
    ReadingsClock clock({0});
    IMFXModule1 module(clock);
    const Picture source{NoiseBitmap(640, 512, 4)};
    { const Bitmap gone(640, 512, {1, 2, 3, 4}); }
    Picture destination;
    module.Run(&KernelSet::FXFlatten, source, destination);
    for (const int row : {0, 509, 511})
        EXPECT_TRUE(std::ranges::all_of(destination.Pixels().Row(row), [](Pixel p) { return p == Pixel{}; }))
            << row;
    { const Bitmap gone(640, 512, {1, 2, 3, 4}); }
    module.Run(&KernelSet::FXFlatten, Picture(), destination);
    EXPECT_EQ(destination.Pixels(), Bitmap(640, 512));
}

TEST(IMFXModule1Test, AnEmptySourceAtFirstLeavesTheDestination) {
    ReadingsClock clock({0});
    IMFXModule1 module(clock);
    Picture destination{Bitmap(2, 2, Grey(7))};
    const Picture before = destination;
    module.Run(&KernelSet::FXFlatten2, Picture(), destination);
    EXPECT_TRUE(destination.SharesPixelsWith(before));
    EXPECT_EQ(module.FXWidth, 0);
    EXPECT_EQ(module.FXHeight, 0);
    EXPECT_FALSE(module.FXBusy);
}

TEST(IMFXModule1Test, AnEmptySourceLaterIsBlackInTheSizesOfTheRunBefore) {
    ReadingsClock clock({0});
    IMFXModule1 module(clock);
    const Picture source{Bitmap(5, 2, Grey(9))};
    for (const KernelButton& button : kKernelButtons) {
        Picture destination;
        module.Run(button.kernel, source, destination, button.arguments);
        module.Run(button.kernel, Picture(), destination, button.arguments);
        EXPECT_EQ(destination.Pixels(), Bitmap(5, 2)) << button.control;
        EXPECT_EQ(module.FXWidth, 5) << button.control;
        EXPECT_EQ(module.FXHeight, 2) << button.control;
        EXPECT_FALSE(module.FXBusy) << button.control;
    }
}

} // namespace
} // namespace mirelle::test
