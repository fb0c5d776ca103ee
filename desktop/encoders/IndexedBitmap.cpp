#include "desktop/encoders/IndexedBitmap.h"

#include "desktop/encoders/AdaptivePalette.h"
#include "desktop/encoders/ColourGrid.h"
#include "desktop/encoders/NearestColour.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace mirelle {
namespace {

constexpr std::size_t kGreatestPalette = 256;
// In sixteenths of a step. Where no mixture of the palette's colours gives what is wanted the lack would grow
// and grow, until it calls for a colour that has nothing to do with the picture there: a speckle.
constexpr int kGreatestCorrection = 16 * 16;

// Numbers for colours in the order of their first appearance.
class ColourNumbers {
public:
    // The colour's number; nothing when it would be the 257th.
    std::optional<std::uint8_t> Of(Pixel pixel) {
        const Color colour = ColorOf(pixel);
        std::size_t slot = (static_cast<std::uint32_t>(colour) * 2654435761u) >> (32 - kSlotBits);
        while (slots_[slot].number >= 0 && slots_[slot].colour != colour)
            slot = (slot + 1) % slots_.size();
        if (slots_[slot].number < 0) {
            if (palette_.size() == kGreatestPalette) return std::nullopt;
            slots_[slot] = {colour, static_cast<int>(palette_.size())};
            palette_.push_back({pixel.blue, pixel.green, pixel.red, 0});
        }
        return static_cast<std::uint8_t>(slots_[slot].number);
    }
    std::vector<Pixel>& Palette() { return palette_; }

private:
    static constexpr unsigned kSlotBits = 10; // four times as many slots as colours

    struct Slot {
        Color colour = 0;
        int number = -1;
    };
    std::array<Slot, std::size_t{1} << kSlotBits> slots_;
    std::vector<Pixel> palette_;
};

// The palette's nearest colour for each cell of the grid, sought once.
class NearestByCell {
public:
    NearestByCell(const ColourGrid& grid, std::span<const Pixel> palette)
        : grid_(grid), nearest_(palette), numbers_(ColourGrid::kCellCount, kUnknown) {}

    std::uint8_t Of(Pixel pixel) {
        std::int16_t& number = numbers_[grid_.CellOf(pixel)];
        if (number == kUnknown) number = static_cast<std::int16_t>(nearest_.Of(pixel));
        return static_cast<std::uint8_t>(number);
    }

private:
    static constexpr std::int16_t kUnknown = -1;

    const ColourGrid& grid_;
    NearestColour nearest_;
    std::vector<std::int16_t> numbers_;
};

// What a colour lacks: of blue, green and red, in sixteenths of a step.
using Lack = std::array<int, 3>;

// What the pixels of one row pass on to the row below, in sixteenths of their lacks: each 3 parts against the
// direction of its row, 5 straight down and 1 along it. Summed up as the row goes, so that each place below
// is written once.
class PassedDown {
public:
    // The sum for the pixel behind the present one, which no later pixel adds to.
    Lack Add(const Lack& lack) {
        Lack behind;
        for (std::size_t i = 0; i < lack.size(); ++i) {
            behind[i] = behind_[i] + 3 * lack[i];
            behind_[i] = below_[i] + 5 * lack[i];
            below_[i] = lack[i];
        }
        return behind;
    }
    // The sum for the row's last pixel.
    const Lack& Last() const { return behind_; }

private:
    Lack behind_{}; // for the place that is behind the next pixel
    Lack below_{};  // for the place that is below the next pixel
};

class Dithering {
public:
    Dithering(const Bitmap& bitmap, const ColourGrid& grid, std::span<const Pixel> palette)
        : bitmap_(bitmap), grid_(grid), palette_(palette), nearest_(grid, palette),
          lacks_(static_cast<std::size_t>(bitmap.Width())) {}

    // Rows have to come in order.
    void Row(int y, std::span<std::uint8_t> numbers) {
        const std::span<const Pixel> row = bitmap_.Row(y);
        const bool isForward = y % 2 == 0;
        const auto place = [&](std::size_t i) { return isForward ? i : row.size() - 1 - i; };
        PassedDown passedDown;
        Lack lack{};
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::size_t x = place(i);
            const Lack sought = Sought(row[x], lacks_[x], lack);
            numbers[x] = nearest_.Of({Step(sought[0]), Step(sought[1]), Step(sought[2]), 0});
            const Pixel& found = palette_[numbers[x]];
            lack = {sought[0] - 16 * found.blue, sought[1] - 16 * found.green, sought[2] - 16 * found.red};
            const Lack behind = passedDown.Add(lack);
            if (i > 0) lacks_[place(i - 1)] = behind;
        }
        lacks_[place(row.size() - 1)] = passedDown.Last();
    }

private:
    // A pixel's colour in sixteenths, with what the row above lacks and 7 parts of what its forerunner lacks.
    Lack Sought(Pixel given, const Lack& above, const Lack& before) const {
        const auto raised = [&](int value, std::size_t i) {
            const int correction = (above[i] + 7 * before[i] + 8) >> 4;
            const int sought = 16 * value + std::clamp(correction, -kGreatestCorrection, kGreatestCorrection);
            return std::clamp(sought, 16 * grid_.Lowest(i), 16 * grid_.Highest(i));
        };
        return {raised(given.blue, 0), raised(given.green, 1), raised(given.red, 2)};
    }
    static std::uint8_t Step(int sixteenths) { return static_cast<std::uint8_t>((sixteenths + 8) >> 4); }

    const Bitmap& bitmap_;
    const ColourGrid& grid_;
    std::span<const Pixel> palette_;
    NearestByCell nearest_;
    std::vector<Lack> lacks_; // of the row above, in 256ths, by place
};

} // namespace

std::optional<IndexedBitmap> IndexExactly(const Bitmap& bitmap) {
    ColourNumbers colours;
    IndexedBitmap indexed{bitmap.Width(), bitmap.Height(), {}, {}};
    indexed.numbers.reserve(bitmap.Pixels().size());
    for (const Pixel& pixel : bitmap.Pixels()) {
        const std::optional<std::uint8_t> number = colours.Of(pixel);
        if (!number) return std::nullopt;
        indexed.numbers.push_back(*number);
    }
    indexed.palette = std::move(colours.Palette());
    return indexed;
}

IndexedBitmap IndexByDithering(const Bitmap& bitmap) {
    const ColourGrid grid(bitmap);
    IndexedBitmap indexed{bitmap.Width(), bitmap.Height(), AdaptivePalette(bitmap, grid, kGreatestPalette),
                          std::vector<std::uint8_t>(bitmap.Pixels().size())};
    Dithering dithering(bitmap, grid, indexed.palette);
    const auto width = static_cast<std::size_t>(bitmap.Width());
    for (int y = 0; y < bitmap.Height(); ++y)
        dithering.Row(y, std::span(indexed.numbers).subspan(static_cast<std::size_t>(y) * width, width));
    return indexed;
}

} // namespace mirelle
