#include "fx/IMFXModule1.h"

#include "forms/Numbers.h"
#include "forms/RunTimeError.h"

#include <utility>

namespace mirelle {

std::int32_t IMFXModule1::Run(Kernel kernel, const Picture& source, Picture& destination,
                              const KernelArguments& arguments) {
    FXBusy = true;
    BeginFX(source);
    if (!SrcPix.Pixels().IsEmpty() && !DstPix.IsEmpty()) {
        const KernelFrame frame{SrcPix.Pixels().Pixels(), DstPix.Pixels(), FXWidth, FXHeight};
        (kernels_.*kernel)(frame, arguments);
    }
    const std::int32_t elapsed = EndFX(destination);
    FXBusy = false;
    return elapsed;
}

void IMFXModule1::BeginFX(const Picture& source) {
    SrcPix = source;
    DstPix = {};
    if (!SrcPix.Pixels().IsEmpty()) {
        FXWidth = SrcPix.Width();
        FXHeight = SrcPix.Height();
    }
    // The kernel writes all of it; without a source there is none to run.
    const bool isWritten = !SrcPix.Pixels().IsEmpty();
    ResumeNext(
        [&] { DstPix = isWritten ? Bitmap::Unwritten(FXWidth, FXHeight) : Bitmap(FXWidth, FXHeight); });
    ResumeNext([&] { FXStartMs = GetTimeMs(); });
}

std::int32_t IMFXModule1::EndFX(Picture& destination) {
    ResumeNext([&] { FXEndMs = GetTimeMs(); });
    std::int32_t elapsed = 0;
    ResumeNext([&] { elapsed = Long(FXEndMs) - Long(FXStartMs); });
    if (!DstPix.IsEmpty()) destination = Picture(std::move(DstPix));
    return elapsed;
}

std::int32_t IMFXModule1::GetTimeMs() const {
    return ToLong(pump_.Milliseconds());
}

} // namespace mirelle
