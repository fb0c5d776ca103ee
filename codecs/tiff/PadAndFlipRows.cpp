#include "codecs/tiff/PadAndFlipRows.h"

#include "forms/Numbers.h"
#include "forms/RunTimeError.h"

#include <algorithm>

namespace mirelle::tiff {

void PadAndFlipRows(ByteArray& image, std::int32_t rows, std::int32_t rowBytes, std::int64_t longest) {
    // To the next multiple of four above, for negative lengths too.
    const auto padding = static_cast<std::int32_t>(-static_cast<std::uint32_t>(rowBytes) % 4);
    const std::int32_t paddedLength = Long(rowBytes) + Long(padding);
    ByteArray flipped;
    Resize(flipped, Long(paddedLength) * Long(rows), longest);
    if (rows > 0 && std::int64_t{rows} * rowBytes > static_cast<std::int64_t>(image.size()))
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    for (std::int64_t row = 0; row < rows; ++row)
        std::copy_n(image.begin() + (rows - 1 - row) * rowBytes, rowBytes,
                    flipped.begin() + row * paddedLength);
    image = std::move(flipped);
}

} // namespace mirelle::tiff
