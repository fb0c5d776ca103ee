// The errors that the JPEG encoder raises with descriptions of its own, all of them number 1.
#pragma once

#include "forms/RunTimeError.h"

#include <new>
#include <stdexcept>
#include <utility>

namespace mirelle::jpeg {

inline constexpr const char* kInvalidSamplingValue = "Invalid Sampling Value";
inline constexpr const char* kIllegalCommentLength = "Illegal Comment Length";
inline constexpr const char* kBadQuantizationTable = "Bad Quantization Table";
inline constexpr const char* kBadHuffmanTable = "Bad Huffman Table";
inline constexpr const char* kIllegalPrecision = "Illegal precision in Quantization Table";

[[noreturn]] inline void RaiseCodecFailure(const char* description) {
    throw RunTimeError(ErrorNumber::CodecFailure, description);
}

// Does the work; memory that can't be had for it raises error 7, whichever part asked for it.
template <class Work>
decltype(auto) RaisingOutOfMemory(Work&& work) {
    try {
        return std::forward<Work>(work)();
    } catch (const std::bad_alloc&) {
        throw RunTimeError(ErrorNumber::OutOfMemory);
    } catch (const std::length_error&) {
        throw RunTimeError(ErrorNumber::OutOfMemory);
    }
}

} // namespace mirelle::jpeg
