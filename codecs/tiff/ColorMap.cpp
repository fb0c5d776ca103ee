#include "codecs/tiff/ColorMap.h"

#include "forms/Numbers.h"
#include "forms/RunTimeError.h"

#include <algorithm>

namespace mirelle::tiff {

ByteArray ReadColorMap(BinaryFile& file, std::int32_t place, std::int32_t count, std::int64_t longest) {
    CheckLength(count, longest);
    const auto entries = static_cast<std::int64_t>(ToLong(count / 3.0 - 1)) + 1;
    CheckLength(entries, longest);
    // From the second byte on, where the high byte of a number stands.
    file.Seek(std::int64_t{place} + 2);
    if (3 * entries > count) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    ByteArray triples;
    Resize(triples, std::min<std::int64_t>(count, 3 * kMostColors));
    const std::span<const std::uint8_t> map = file.Rest();
    const auto channelLength = static_cast<std::size_t>(2 * entries);
    const auto taken = static_cast<std::size_t>(std::min(entries, kMostColors));
    for (std::size_t i = 0; i < taken; ++i) {
        for (std::size_t channel = 0; channel < 3; ++channel) {
            const std::size_t at = channel * channelLength + 2 * i;
            if (at < map.size()) triples[3 * i + channel] = map[at];
        }
    }
    return triples;
}

} // namespace mirelle::tiff
