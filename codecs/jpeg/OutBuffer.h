// The whole file while it is built: bytes behind each other up to a limit.
#pragma once

#include "codecs/jpeg/Array.h"
#include "forms/RunTimeError.h"

#include <cstdint>
#include <span>

namespace mirelle::jpeg {

class OutBuffer {
public:
    // The bytes that may be stored beyond the limit by a writer that asks CheckLimit before every four,
    // stuffed or not, and MoveTo at its end.
    static constexpr std::size_t kMargin = 32;

    // Raises error 7 when the memory can't be had.
    explicit OutBuffer(std::size_t limit) : limit_(limit), bytes_(limit + kMargin) {}

    std::size_t Remaining() const { return limit_ - position_; }
    std::span<const std::uint8_t> Written() const {
        return std::span<const std::uint8_t>(bytes_).first(position_);
    }

    // Raises error 6 for a value outside of 0..255, error 9 beyond the limit.
    void Byte(std::int32_t value) {
        if (value < 0 || value > 255) throw RunTimeError(ErrorNumber::Overflow);
        if (position_ >= limit_) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        bytes_[position_++] = static_cast<std::uint8_t>(value);
    }
    // Two bytes, the higher one first. Raises error 6 for a value outside of 0..65535.
    void Word(std::int32_t value) {
        Byte(value >> 8);
        Byte(value & 255);
    }

    // For a writer that stores bytes itself: where the next one goes, and where it got to. Raises error 9
    // beyond the limit.
    std::uint8_t* Next() { return bytes_.Data() + position_; }
    void CheckLimit(const std::uint8_t* next) const {
        if (next > bytes_.Data() + limit_) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    }
    void MoveTo(const std::uint8_t* next) {
        CheckLimit(next);
        position_ = static_cast<std::size_t>(next - bytes_.Data());
    }

private:
    std::size_t limit_;
    std::size_t position_ = 0;
    Array<std::uint8_t> bytes_;
};

} // namespace mirelle::jpeg
