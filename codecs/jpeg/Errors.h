// The errors that the JPEG encoder raises with descriptions of its own, all of them number 1.
#pragma once

#include "forms/RunTimeError.h"

namespace mirelle::jpeg {

inline constexpr const char* kInvalidSamplingValue = "Invalid Sampling Value";
inline constexpr const char* kIllegalCommentLength = "Illegal Comment Length";
inline constexpr const char* kBadQuantizationTable = "Bad Quantization Table";
inline constexpr const char* kBadHuffmanTable = "Bad Huffman Table";
inline constexpr const char* kIllegalPrecision = "Illegal precision in Quantization Table";

[[noreturn]] inline void RaiseCodecFailure(const char* description) {
    throw RunTimeError(ErrorNumber::CodecFailure, description);
}

} // namespace mirelle::jpeg
