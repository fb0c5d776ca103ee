#include "bench/Wishes.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <sstream>
#include <string_view>

namespace mirelle::bench {
namespace {

template <class Number>
bool Read(const std::string& text, Number& number) {
    std::istringstream in(text);
    return static_cast<bool>(in >> number) && in.eof();
}

// An option that stands alone.
struct Flag {
    std::string_view name;
    void (*take)(Wishes& wishes);
};
constexpr std::array kFlags{
    Flag{"--list", [](Wishes& wishes) { wishes.list = true; }},
    Flag{"--alone", [](Wishes& wishes) { wishes.manner.alone = true; }},
};

// An option with a value behind it; false where that is none.
struct Option {
    std::string_view name;
    bool (*take)(Wishes& wishes, const std::string& value);
};
constexpr std::array kOptions{
    Option{"--seconds",
           [](Wishes& wishes, const std::string& value) { return Read(value, wishes.manner.seconds); }},
    Option{"--seed", [](Wishes& wishes, const std::string& value) { return Read(value, wishes.seed); }},
    Option{"--picture",
           [](Wishes& wishes, const std::string& value) {
               wishes.pictureFile = value;
               return !value.empty();
           }},
};

template <class Rows>
auto Find(const Rows& rows, const std::string& name) {
    return std::ranges::find_if(rows, [&](const auto& row) { return row.name == name; });
}

} // namespace

std::string Lower(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

std::optional<Wishes> WishesOf(int count, char** arguments) {
    Wishes wishes;
    for (int i = 1; i < count; ++i) {
        const std::string argument = arguments[i];
        if (const auto flag = Find(kFlags, argument); flag != kFlags.end()) {
            flag->take(wishes);
        } else if (const auto option = Find(kOptions, argument); option != kOptions.end()) {
            if (++i == count || !option->take(wishes, arguments[i])) return std::nullopt;
        } else if (argument.starts_with("--") || !wishes.filter.empty()) {
            return std::nullopt;
        } else {
            wishes.filter = Lower(argument);
        }
    }
    return wishes;
}

} // namespace mirelle::bench
