#include "codecs/tiff/ByteArray.h"

#include "forms/RunTimeError.h"

namespace mirelle::tiff {

void CheckLength(std::int64_t count, std::int64_t longest) {
    if (count < 1) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    if (count > longest) throw RunTimeError(ErrorNumber::OutOfMemory);
}

void Resize(ByteArray& array, std::int64_t count, std::int64_t longest) {
    CheckLength(count, longest);
    WithinMemory([&] { array.resize(static_cast<std::size_t>(count)); });
}

std::int64_t UpperBound(const ByteArray& array) {
    if (array.empty()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return static_cast<std::int64_t>(array.size()) - 1;
}

} // namespace mirelle::tiff
