#include "codecs/tiff/LongArray.h"

#include "codecs/tiff/SwapBytes.h"
#include "forms/RunTimeError.h"

#include <algorithm>

namespace mirelle::tiff {
namespace {

constexpr std::int32_t kMostElements = 1 << 28;

} // namespace

LongArray LongArray::Of(std::int32_t value) {
    LongArray array;
    array.count_ = 1;
    array.present_ = {value};
    return array;
}

LongArray LongArray::From(BinaryFile& file, std::int64_t position, std::int32_t count, bool swapped) {
    if (count < 1) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    if (count > kMostElements) throw RunTimeError(ErrorNumber::OutOfMemory);
    LongArray array;
    array.count_ = count;
    file.Seek(position);
    // The last of them may lie half beyond the file's end.
    const auto inFile = std::min<std::int64_t>(count, (file.BytesLeft() + 3) / 4);
    array.present_.reserve(static_cast<std::size_t>(inFile));
    for (std::int64_t i = 0; i < inFile; ++i) {
        std::int32_t value = file.Int32();
        if (swapped) SwapBytesLong(value);
        array.present_.push_back(value);
    }
    return array;
}

std::int32_t LongArray::UpperBound() const {
    if (count_ == 0) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return count_ - 1;
}

std::int32_t LongArray::operator[](std::int32_t index) const {
    const auto at = static_cast<std::size_t>(index);
    return at < present_.size() ? present_[at] : 0;
}

} // namespace mirelle::tiff
