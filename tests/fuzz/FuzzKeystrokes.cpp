// Any bytes as a text of the keystroke language: strokes within the bounds, or error 5.
#include "bridge/Keystrokes.h"
#include "forms/RunTimeError.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto strokes = mirelle::InterpretKeystrokes({reinterpret_cast<const char*>(data), size});
        if (strokes.size() > mirelle::kMaxKeyStrokes) std::abort();
        for (const auto& stroke : strokes)
            if ((stroke.kept & ~stroke.modifiers) != 0 || stroke.character > 0x10FFFF) std::abort();
    } catch (const mirelle::RunTimeError& error) {
        if (error.Number() != mirelle::ErrorNumber::InvalidProcedureCall) std::abort();
    }
    return 0;
}
