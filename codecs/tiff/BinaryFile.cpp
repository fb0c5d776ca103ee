#include "codecs/tiff/BinaryFile.h"

#include "forms/RunTimeError.h"

#include <algorithm>
#include <limits>

namespace mirelle::tiff {

void BinaryFile::Seek(std::int64_t position) {
    if (position > std::numeric_limits<std::int32_t>::max()) throw RunTimeError(ErrorNumber::Overflow);
    if (position < 1) throw RunTimeError(ErrorNumber::BadRecordNumber);
    next_ = position - 1;
}

std::uint8_t BinaryFile::Byte() {
    const std::span<const std::uint8_t> rest = Rest();
    ++next_;
    return rest.empty() ? std::uint8_t{0} : rest.front();
}

std::int16_t BinaryFile::Int16() {
    const unsigned low = Byte();
    const unsigned high = Byte();
    return static_cast<std::int16_t>(low | (high << 8));
}

std::int32_t BinaryFile::Int32() {
    const std::uint32_t low = static_cast<std::uint16_t>(Int16());
    const std::uint32_t high = static_cast<std::uint16_t>(Int16());
    return static_cast<std::int32_t>(low | (high << 16));
}

void BinaryFile::Fill(std::span<std::uint8_t> bytes) {
    const std::span<const std::uint8_t> rest = Rest();
    const std::size_t present = std::min(bytes.size(), rest.size());
    std::ranges::copy(rest.first(present), bytes.begin());
    std::ranges::fill(bytes.subspan(present), std::uint8_t{0});
    next_ += static_cast<std::int64_t>(bytes.size());
}

std::span<const std::uint8_t> BinaryFile::Rest() const {
    return bytes_.subspan(std::min(bytes_.size(), static_cast<std::size_t>(next_)));
}

} // namespace mirelle::tiff
