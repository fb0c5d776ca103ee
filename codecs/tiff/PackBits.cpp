#include "codecs/tiff/PackBits.h"

#include "forms/Numbers.h"
#include "forms/RunTimeError.h"

#include <algorithm>

namespace mirelle::tiff {
namespace {

std::int64_t LengthOf(std::span<const std::uint8_t> bytes) {
    return static_cast<std::int64_t>(bytes.size());
}

// Copies `count` bytes as far as they exist on both sides.
void CopyBytes(std::span<const std::uint8_t> from, std::int64_t source, ByteArray& to, std::int64_t target,
               std::int64_t count) {
    const std::int64_t length = std::min({count, LengthOf(from) - source, LengthOf(to) - target});
    if (length > 0) std::copy_n(from.begin() + source, length, to.begin() + target);
}

// rows x width x unit; 0 where that leaves 32 bits.
std::int64_t SizeOf(std::int32_t rows, std::int32_t width, std::int32_t unit) {
    std::int32_t size = 0;
    ResumeNext([&] { size = Long(rows) * Long(width) * Long(unit); });
    return size;
}

} // namespace

ByteArray DecodePackBits(NoOperations& file, StripPlace strip, int bits, std::int32_t rows,
                         std::int32_t width, std::int64_t longest) {
    const std::int32_t unit = bits / 8;
    const std::int64_t size = SizeOf(rows, width, unit);
    ByteArray output;
    ResumeNext([&] { Resize(output, size + 1, longest); });
    // Behind the file's end stand zeros, which are literals of a zero and change nothing.
    const std::int64_t end = std::min(strip.offset + strip.length, LengthOf(file.Bytes()));
    const std::span<const std::uint8_t> bytes = file.Bytes().first(static_cast<std::size_t>(end));
    std::int64_t src = strip.offset;
    std::int64_t dst = 0;
    // A no-op moves on as the run ahead of it did, or by twice the literal ahead of it and a byte.
    std::int64_t noOperationStep = 1;
    while (dst < size && src < end) {
        const int code = bytes[static_cast<std::size_t>(src)];
        if (code > kNoOperation) {
            const int n = 257 - code;
            for (int i = 0; i < n; ++i, dst += unit)
                CopyBytes(bytes, src + 1, output, dst, unit);
            src += unit + 1;
            noOperationStep = unit + 1;
        } else if (code < kNoOperation) {
            const std::int64_t n = code + 1;
            const std::int64_t literal = n * unit;
            CopyBytes(bytes, src + 1, output, dst, literal);
            dst += literal;
            src += literal + 1;
            noOperationStep = (n + literal) * unit + 1;
        } else {
            src = file.EndOf(src, noOperationStep);
        }
    }
    ResumeNext([&] { Resize(output, size, longest); });
    return output;
}

} // namespace mirelle::tiff
