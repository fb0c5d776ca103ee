// The words in which the plain kernels are written: checked working values, one set of three a pixel, and a
// frame that is all 0 at first and whose reads and stores fail off the picture.
//
// Every statement of a plain kernel that can fail stands in a ResumeNext of its own, so that its target keeps
// the value of the previous pixel. That is how the edges of a picture come about.
#pragma once

#include "forms/Numbers.h"
#include "forms/RunTimeError.h"
#include "fx/KernelFrame.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace mirelle::plain {

enum Channel { kBlue, kGreen, kRed };

// Signed 16-bit working values of one pixel, by channel.
using Triple = std::array<Integer, 3>;

template <class Step>
void EachChannel(Step&& step) {
    for (const Channel channel : {kRed, kGreen, kBlue})
        step(channel);
}

// A float rounded to the nearest integer, a tie to the even one, stored in 16 bits. Raises error 6 beyond
// them.
inline Integer Rnd(double value) {
    return ToInteger(value);
}

inline double Divide(double dividend, Integer divisor) {
    if (divisor.Value() == 0) throw RunTimeError(ErrorNumber::DivisionByZero);
    return dividend / divisor.Value();
}

inline Integer Magnitude(Integer value) {
    return value.Value() < 0 ? Integer(0) - value : value;
}

inline void LimitBelow(Integer& value) {
    if (value.Value() < 0) value = 0;
}
inline void LimitAbove(Integer& value) {
    if (value.Value() > 255) value = 255;
}
inline void Clamp(Integer& value) {
    LimitBelow(value);
    LimitAbove(value);
}

class PlainFrame {
public:
    explicit PlainFrame(const KernelFrame& frame) : frame_(frame) {
        std::ranges::fill(frame.destination, Pixel{});
    }

    int Width() const { return frame_.width; }
    int Height() const { return frame_.height; }

    // One byte of the source. Raises error 9 off the picture.
    Integer S(int x, int y, Channel channel) const {
        const Pixel& pixel = frame_.source[IndexOf(x, y)];
        return channel == kBlue ? pixel.blue : channel == kGreen ? pixel.green : pixel.red;
    }

    // Reads a pixel channel by channel; a read that fails leaves its channel as it is.
    void Read(Triple& values, int x, int y) const {
        EachChannel([&](Channel channel) { ResumeNext([&] { values[channel] = S(x, y, channel); }); });
    }

    // Stores a working value in a byte of the destination, which stays as it is when the value does not fit a
    // byte or the place is off the picture.
    void Store(int x, int y, Channel channel, Integer value) const {
        ResumeNext([&] {
            Pixel& pixel = frame_.destination[IndexOf(x, y)];
            if (value.Value() < 0 || value.Value() > 255) throw RunTimeError(ErrorNumber::Overflow);
            const auto byte = static_cast<std::uint8_t>(value.Value());
            (channel == kBlue ? pixel.blue : channel == kGreen ? pixel.green : pixel.red) = byte;
        });
    }
    void Store(int x, int y, const Triple& values) const {
        EachChannel([&](Channel channel) { Store(x, y, channel, values[channel]); });
    }

    // The usual loops: rows from the top, in each row from the left.
    template <class Step>
    void EachPixel(Step&& step) const {
        for (int y = 0; y < Height(); ++y) {
            for (int x = 0; x < Width(); ++x)
                step(x, y);
        }
    }

private:
    std::size_t IndexOf(int x, int y) const {
        if (x < 0 || y < 0 || x >= Width() || y >= Height()) {
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        }
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(Width()) + static_cast<std::size_t>(x);
    }

    const KernelFrame& frame_;
};

} // namespace mirelle::plain
