// The arithmetic of the contrast effect.
//
// Each channel c of each pixel becomes c + ((c - 127) x percent) \ 100, limited to a byte. The whole division
// rounds both sides to whole numbers first, a half to the even one, and then cuts toward zero. A number as
// percent makes the product an integer of its own width, checked; a text makes it a float. A step that fails
// (a text that is no number, a result beyond 16 bits) leaves the channel as it was.
#pragma once

#include "forms/Picture.h"
#include "forms/Variant.h"
#include "fx/fast/ContrastLine.h"
#include "fx/FormChoice.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace mirelle {

// What the question for a percentage proposes, and what the fast contrast takes without one.
inline constexpr std::string_view kProposedContrast = "50";
constexpr std::int16_t kFastContrast = 30;

// The parts of a colour. Off the picture, for the colour -1, they are -1, 0 and 0.
std::int16_t GetRed(Color color);
std::int16_t GetGreen(Color color);
std::int16_t GetBlue(Color color);

// The effect at one percent: what a channel becomes depends on nothing but the channel, so it is worked out
// once for each of its 256 values.
class Contrast {
public:
    explicit Contrast(const Variant& percent, FXForm form = ChosenFXForm());

    std::uint8_t operator()(std::uint8_t channel) const { return table_[channel]; }

    // Rows or whole pictures, of one size; they may be the same. The fourth byte of every result is 0, as in
    // every colour that is set.
    void Apply(std::span<const Pixel> source, std::span<Pixel> destination) const;

private:
    fast::ContrastTable table_{};
    // What the fast form follows instead of the table.
    std::optional<fast::ContrastLine> line_;
};

} // namespace mirelle
