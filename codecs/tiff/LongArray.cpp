#include "codecs/tiff/LongArray.h"

#include "codecs/tiff/SwapBytes.h"
#include "forms/RunTimeError.h"

namespace mirelle::tiff {
namespace {

constexpr std::int32_t kMostElements = 1 << 28;
constexpr std::int64_t kElementSize = 4;

} // namespace

LongArray LongArray::Of(std::int32_t value) {
    LongArray array;
    array.count_ = 1;
    array.onlyElement_ = value;
    return array;
}

LongArray LongArray::From(BinaryFile& file, std::int64_t position, std::int32_t count, bool swapped) {
    if (count < 1) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    if (count > kMostElements) throw RunTimeError(ErrorNumber::OutOfMemory);
    file.Seek(position);
    LongArray array;
    array.count_ = count;
    array.bytes_ = file.Rest();
    array.swapped_ = swapped;
    return array;
}

std::int32_t LongArray::UpperBound() const {
    if (count_ == 0) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return count_ - 1;
}

std::int32_t LongArray::operator[](std::int32_t index) const {
    if (onlyElement_) return *onlyElement_;
    BinaryFile elements(bytes_);
    elements.Seek(kElementSize * index + 1);
    std::int32_t value = elements.Int32();
    if (swapped_) SwapBytesLong(value);
    return value;
}

} // namespace mirelle::tiff
