#include "bridge/WindowTitle.h"

#include "forms/Text.h"

#include <algorithm>
#include <vector>

namespace mirelle {

std::optional<std::size_t> FindTitle(std::span<const std::string> titles, std::string_view wanted) {
    if (wanted.empty()) return std::nullopt;
    const std::string low = LowerCase(wanted);
    std::vector<std::string> lowTitles;
    for (const std::string& title : titles)
        lowTitles.push_back(LowerCase(title));

    const auto first = [&](auto fits) -> std::optional<std::size_t> {
        const auto found = std::ranges::find_if(lowTitles, fits);
        if (found == lowTitles.end()) return std::nullopt;
        return std::size_t(found - lowTitles.begin());
    };
    if (const auto same = first([&](const std::string& title) { return title == low; })) return same;
    if (const auto begins = first([&](const std::string& title) { return title.starts_with(low); }))
        return begins;
    return first([&](const std::string& title) { return title.ends_with(low); });
}

} // namespace mirelle
