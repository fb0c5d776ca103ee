// A growing string of bits in memory, the highest bit of each word first: what a part of a scan codes to.
#pragma once

#include "codecs/jpeg/Array.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace mirelle::jpeg {

class BitString {
public:
    // Makes room for so many bits more. Raises error 7 when the memory can't be had.
    void Reserve(std::size_t bits) {
        const std::size_t needed = used_ + bits / 32 + 2;
        if (needed > words_.Size()) Grow(std::max(needed, words_.Size() * 2));
    }

    // Appends the `length` lowest bits (0..32) of `bits`, whose other bits are 0. There has to be room.
    void Append(std::uint32_t bits, unsigned length) {
        accumulator_ = (accumulator_ << length) | bits;
        held_ += length;
        if (held_ >= 32) {
            held_ -= 32;
            words_[used_++] = static_cast<std::uint32_t>(accumulator_ >> held_);
        }
    }

    // The whole words, and the bits behind them.
    std::span<const std::uint32_t> Words() const {
        return std::span<const std::uint32_t>(words_).first(used_);
    }
    std::uint32_t TailBits() const {
        return static_cast<std::uint32_t>(accumulator_ & ((std::uint64_t{1} << held_) - 1));
    }
    unsigned TailLength() const { return held_; }

private:
    void Grow(std::size_t words) {
        Array<std::uint32_t> larger(words);
        std::copy_n(words_.Data(), used_, larger.Data());
        words_ = std::move(larger);
    }

    Array<std::uint32_t> words_;
    std::size_t used_ = 0;
    std::uint64_t accumulator_ = 0; // its lowest held_ bits are not in a word yet
    unsigned held_ = 0;             // below 32 between calls
};

} // namespace mirelle::jpeg
