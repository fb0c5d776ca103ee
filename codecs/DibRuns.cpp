// Run-length coded bitmaps, 4 and 8 bits a pixel: pairs of a count and a value, and escapes that begin with
// 0.

#include "codecs/DibPixels.h"

#include <algorithm>

namespace mirelle {
namespace {

constexpr std::uint8_t kEndOfRow = 0;
constexpr std::uint8_t kEndOfPicture = 1;
constexpr std::uint8_t kMove = 2; // every greater value is a count of values that follow one by one

// The place that is written next, in rows as the file has them. What falls beyond a row's end is left out.
class Pen {
public:
    Pen(const DibHeader& header, std::span<const Pixel, 256> palette, Bitmap& bitmap)
        : isTopDown_(header.isTopDown), palette_(palette), bitmap_(bitmap) {}

    bool IsBeyondTheLastRow() const { return row_ >= bitmap_.Height(); }
    void Write(unsigned number) {
        if (column_ >= bitmap_.Width()) return;
        const int y = isTopDown_ ? row_ : bitmap_.Height() - 1 - row_;
        bitmap_.At(column_++, y) = palette_[number];
    }
    void NextRow() {
        column_ = 0;
        ++row_;
    }
    void Move(int right, int rows) {
        column_ = std::min(column_ + right, bitmap_.Width());
        row_ = std::min(row_ + rows, bitmap_.Height());
    }

private:
    bool isTopDown_;
    std::span<const Pixel, 256> palette_;
    Bitmap& bitmap_;
    int column_ = 0;
    int row_ = 0;
};

// Value i of the ones that begin with the byte: with four bits a value the upper half comes first.
unsigned ValueAt(std::span<const std::uint8_t> bytes, std::size_t i, bool hasHalves) {
    if (!hasHalves) return bytes[i];
    return i % 2 == 0 ? bytes[i / 2] >> 4 : bytes[i / 2] & 0x0Fu;
}

} // namespace

void ReadDibRuns(const DibHeader& header, std::span<const Pixel, 256> palette,
                 std::span<const std::uint8_t> data, Bitmap& bitmap) {
    const bool hasHalves = header.compression == DibCompression::Rle4;
    Pen pen(header, palette, bitmap);
    std::size_t at = 0;
    while (at + 2 <= data.size() && !pen.IsBeyondTheLastRow()) {
        const std::uint8_t count = data[at];
        const std::uint8_t value = data[at + 1];
        at += 2;
        if (count > 0) {
            const std::span<const std::uint8_t> pair = data.subspan(at - 1, 1);
            for (std::size_t i = 0; i < count; ++i)
                pen.Write(ValueAt(pair, hasHalves ? i % 2 : 0, hasHalves));
        } else if (value == kEndOfRow) {
            pen.NextRow();
        } else if (value == kEndOfPicture) {
            return;
        } else if (value == kMove) {
            if (at + 2 > data.size()) return;
            pen.Move(data[at], data[at + 1]);
            at += 2;
        } else {
            const std::size_t bytes = hasHalves ? (value + std::size_t{1}) / 2 : value;
            if (bytes > data.size() - at) return;
            for (std::size_t i = 0; i < value; ++i)
                pen.Write(ValueAt(data.subspan(at), i, hasHalves));
            at = std::min(at + (bytes + 1) / 2 * 2, data.size()); // padded to an even count
        }
    }
}

} // namespace mirelle
