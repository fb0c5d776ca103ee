// Bytes and texts for the tests of files.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mirelle::test {

inline std::vector<std::uint8_t> BytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

inline std::string TextOfBytes(const std::vector<std::uint8_t>& bytes) {
    return {bytes.begin(), bytes.end()};
}

inline std::vector<std::string> Sorted(std::vector<std::string> names) {
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace mirelle::test
