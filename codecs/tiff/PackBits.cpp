#include "codecs/tiff/PackBits.h"

#include "forms/Numbers.h"
#include "forms/RunTimeError.h"

#include <algorithm>

namespace mirelle::tiff {
namespace {

constexpr int kNoOperation = 128;

// Copies `count` bytes as far as they exist on both sides.
void CopyBytes(const ByteArray& from, std::int64_t source, ByteArray& to, std::int64_t target,
               std::int64_t count) {
    const std::int64_t length = std::min({count, static_cast<std::int64_t>(from.size()) - source,
                                          static_cast<std::int64_t>(to.size()) - target});
    if (length > 0) std::copy_n(from.begin() + source, length, to.begin() + target);
}

// rows x width x unit; 0 where that leaves 32 bits.
std::int64_t SizeOf(std::int32_t rows, std::int32_t width, std::int32_t unit) {
    std::int32_t size = 0;
    ResumeNext([&] { size = Long(rows) * Long(width) * Long(unit); });
    return size;
}

} // namespace

void DecodePackBits(ByteArray& strip, int bits, std::int32_t rows, std::int32_t width, std::int64_t longest) {
    const std::int32_t unit = bits / 8;
    const std::int64_t size = SizeOf(rows, width, unit);
    ByteArray output;
    ResumeNext([&] { Resize(output, size + 1, longest); });
    std::int64_t src = 0;
    std::int64_t dst = 0;
    // Both keep their values from one code to the next: a no-op code uses them as they were left.
    std::int64_t n = 0;
    bool run = false;
    while (dst < size && src < static_cast<std::int64_t>(strip.size())) {
        const int code = strip[static_cast<std::size_t>(src)];
        std::int64_t literal = 0;
        if (code > kNoOperation) {
            n = 257 - code;
            for (std::int64_t i = 0; i < n; ++i, dst += unit)
                CopyBytes(strip, src + 1, output, dst, unit);
            run = true;
        } else if (code < kNoOperation) {
            n = code + 1;
            literal = n * unit;
            CopyBytes(strip, src + 1, output, dst, literal);
            dst += literal;
            run = false;
        }
        if (run) {
            src += unit + 1;
            n = n * unit + 1 + literal;
        } else {
            src += n * unit + 1;
            n += literal;
        }
    }
    ResumeNext([&] { Resize(output, size, longest); });
    strip = std::move(output);
}

} // namespace mirelle::tiff
