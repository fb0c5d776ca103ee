// Bits of a scan into bytes, the highest first, with a zero stuffed behind every byte that is all ones.
#pragma once

#include "codecs/jpeg/BitString.h"
#include "codecs/jpeg/OutBuffer.h"

#include <cstdint>

namespace mirelle::jpeg {

// A writer of one scan. Bits gather in a 64-bit accumulator and go out four bytes at a time; stuffing looks
// at all four at once.
class BitWriter {
public:
    explicit BitWriter(OutBuffer& out) : out_(out), next_(out.Next()) {}

    // Writes the `length` lowest bits (0..32) of `bits`, whose other bits are 0. Raises error 9 when the
    // bytes go beyond the buffer's limit.
    void WriteBits(std::uint32_t bits, unsigned length) {
        accumulator_ = (accumulator_ << length) | bits;
        held_ += length;
        if (held_ >= 32) StoreFour();
    }

    void Write(const BitString& bits) {
        for (const std::uint32_t word : bits.Words())
            WriteBits(word, 32);
        WriteBits(bits.TailBits(), bits.TailLength());
    }

    // Fills the byte that is begun with ones and hands the bytes over to the buffer.
    void Flush() {
        if (held_ % 8 != 0) WriteBits((1U << (8 - held_ % 8)) - 1, 8 - held_ % 8);
        while (held_ > 0) {
            held_ -= 8;
            StoreStuffed(static_cast<std::uint8_t>(accumulator_ >> held_));
        }
        out_.MoveTo(next_);
    }

private:
    void StoreStuffed(std::uint8_t byte) {
        *next_++ = byte;
        if (byte == 0xFF) *next_++ = 0;
    }

    void StoreFour() {
        out_.CheckLimit(next_);
        held_ -= 32;
        const auto four = static_cast<std::uint32_t>(accumulator_ >> held_);
        // A byte of `four` is all ones exactly where its complement is 0; the subtraction then borrows into
        // that byte's top bit.
        const std::uint32_t complement = ~four;
        if (((complement - 0x01010101U) & ~complement & 0x80808080U) != 0) {
            for (unsigned shift = 32; shift > 0;)
                StoreStuffed(static_cast<std::uint8_t>(four >> (shift -= 8)));
            return;
        }
        next_[0] = static_cast<std::uint8_t>(four >> 24);
        next_[1] = static_cast<std::uint8_t>(four >> 16);
        next_[2] = static_cast<std::uint8_t>(four >> 8);
        next_[3] = static_cast<std::uint8_t>(four);
        next_ += 4;
    }

    OutBuffer& out_;
    std::uint8_t* next_;            // at most OutBuffer::kMargin bytes beyond the limit
    std::uint64_t accumulator_ = 0; // its lowest held_ bits are still to be stored
    unsigned held_ = 0;             // below 32 between calls
};

} // namespace mirelle::jpeg
