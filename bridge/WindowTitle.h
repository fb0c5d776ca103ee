// Which of the windows that are open a title asks for.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace mirelle {

// The first of the titles that is `wanted`; else the first that begins with it; else the first that ends with
// it. Without regard to case. Nothing where there is none, or where nothing is wanted.
std::optional<std::size_t> FindTitle(std::span<const std::string> titles, std::string_view wanted);

} // namespace mirelle
