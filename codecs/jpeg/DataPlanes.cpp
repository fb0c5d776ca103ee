#include "codecs/jpeg/DataPlanes.h"

#include "forms/Numbers.h"
#include "forms/RunTimeError.h"

#include <cmath>
#include <utility>

namespace mirelle::jpeg {
namespace {

constexpr std::size_t kPixelBytes = 3;

int StepOf(int frameLength, int planeLength) {
    return static_cast<int>(std::floor(static_cast<double>(frameLength) / planeLength + 0.5));
}

} // namespace

DataPlanes::DataPlanes(const PixelData& data, const PixelArea& picture, int w8, int h8,
                       std::vector<PlaneSize> planes)
    : data_(data), picture_(picture), w8_(w8), h8_(h8), planes_(std::move(planes)) {}

PlaneView DataPlanes::Next() {
    const PlaneSize previous = next_ == 0 ? PlaneSize{} : planes_[next_ - 1];
    const PlaneSize& plane = planes_[next_++];
    if (plane.xi != previous.xi || plane.yi != previous.yi) Fetch(plane);
    return {buffer_.data(),
            kPixelBytes,
            static_cast<std::size_t>(plane.xa) * kPixelBytes,
            plane.xa,
            plane.ya,
            0,
            0};
}

// From the picture's top row, the last in the array, downwards. A step that is too small for the plane runs a
// row's samples into the next row's place, where those overwrite them, and past the end in the last row.
void DataPlanes::Fetch(const PlaneSize& plane) {
    const int stepX = StepOf(w8_, plane.xi);
    const int stepY = StepOf(h8_, plane.yi);
    const Long rowLength = Long(plane.xa) * Long(static_cast<int>(kPixelBytes));
    const auto rowBytes = static_cast<std::size_t>(rowLength.Value());
    buffer_.assign(static_cast<std::size_t>((rowLength * Long(plane.ya)).Value()), 0);
    const std::int64_t left = picture_.x;
    const std::int64_t bottom = picture_.y;
    std::size_t rowStart = 0;
    for (std::int64_t row = bottom + picture_.height - 1; row >= bottom; row -= stepY) {
        std::size_t at = rowStart;
        for (std::int64_t column = left; column < left + picture_.width; column += stepX) {
            const std::size_t from = IndexOf(column, row);
            if (at + kPixelBytes > buffer_.size()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
            for (std::size_t channel = 0; channel < kPixelBytes; ++channel) {
                buffer_[at++] = data_.bytes[from + channel];
            }
        }
        rowStart += rowBytes;
    }
}

std::size_t DataPlanes::IndexOf(std::int64_t column, std::int64_t row) const {
    if (column < 0 || column >= data_.columns || row < 0 || row >= data_.rows) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    }
    const std::size_t pixel = static_cast<std::size_t>(row) * static_cast<std::size_t>(data_.columns) +
                              static_cast<std::size_t>(column);
    if (data_.bytes.size() / kPixelBytes <= pixel) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return pixel * kPixelBytes;
}

} // namespace mirelle::jpeg
