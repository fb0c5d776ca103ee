#include "library/LineInput.h"

#include <algorithm>
#include <string_view>

namespace mirelle {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kLineEnd = "\r\n";

} // namespace

LineInput::LineInput(std::span<const std::uint8_t> bytes) : text_(bytes.begin(), bytes.end()) {
    if (text_.starts_with(kByteOrderMark)) next_ = kByteOrderMark.size();
}

std::string LineInput::ReadLine() {
    const std::size_t end = std::min(text_.find_first_of(kLineEnd, next_), text_.size());
    std::string line = text_.substr(std::min(next_, end), end - std::min(next_, end));
    next_ = end + (text_.compare(end, kLineEnd.size(), kLineEnd) == 0 ? kLineEnd.size() : 1);
    return line;
}

} // namespace mirelle
