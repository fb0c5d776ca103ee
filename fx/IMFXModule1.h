// The state of a kernel's run, and the bracket around it: what every kernel button of the "Image FX" panel
// calls.
//
// A run takes the source apart, makes a destination of the same size, lets the kernel paint it and hands it
// over. What an effect leaves alone is black, and the fourth byte of every result is 0. The source is never
// changed: two kernels on one source do not add up.
//
// Everything here runs under the resume-next rule and raises nothing. On an empty source FXWidth and FXHeight
// keep the values of the run before and the destination is made by them, but no kernel can read or store
// anything: it stays black. Where there was no run before, there is no destination to paint either.
#pragma once

#include "forms/Picture.h"
#include "forms/ports/Time.h"
#include "fx/KernelSet.h"

#include <cstdint>

namespace mirelle {

class IMFXModule1 {
public:
    explicit IMFXModule1(EventPump& pump, const KernelSet& kernels = ChosenKernels())
        : pump_(pump), kernels_(kernels) {}

    // The pixel arrays, x fastest, rows from the top. EndFX hands the destination over and leaves it empty.
    Picture SrcPix;
    Bitmap DstPix;
    std::int32_t FXWidth = 0; // pixels
    std::int32_t FXHeight = 0;
    std::int32_t FXStartMs = 0;
    std::int32_t FXEndMs = 0;
    bool FXBusy = false; // from the start of a kernel to its end

    // Runs one kernel. `destination` becomes the painted picture, FXWidth x FXHeight, or keeps what it holds
    // where that is nothing; the result is the elapsed milliseconds.
    std::int32_t Run(Kernel kernel, const Picture& source, Picture& destination,
                     const KernelArguments& arguments = {});

    void BeginFX(const Picture& source);
    std::int32_t EndFX(Picture& destination);
    // The free-running counter in whole milliseconds, a half to the even one. Raises error 6 beyond 32 bits.
    std::int32_t GetTimeMs() const;

private:
    EventPump& pump_;
    const KernelSet& kernels_;
};

} // namespace mirelle
