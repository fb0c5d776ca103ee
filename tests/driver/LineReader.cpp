#include "tests/driver/LineReader.h"

#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"

#include <charconv>
#include <cmath>

namespace mirelle::driver {
namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

template <class Number>
Number ReadNumber(const std::string& word) {
    Number number{};
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    if (error != std::errc() || stop != end) throw UsageError(JsonString(word) + " is no number to use here");
    return number;
}

} // namespace

std::optional<std::string> ReadLine(std::istream& input) {
    std::string line;
    std::streambuf& buffer = *input.rdbuf();
    constexpr int kEnd = std::char_traits<char>::eof();
    int next = buffer.sbumpc();
    if (next == kEnd) return std::nullopt;
    for (; next != kEnd && next != '\n'; next = buffer.sbumpc()) {
        if (line.size() <= kLongestLine) line += static_cast<char>(next);
    }
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return line;
}

std::vector<std::string> WordsOf(std::string_view line) {
    if (line.size() > kLongestLine) throw UsageError("the line is too long");
    std::vector<std::string> words;
    std::size_t at = 0;
    for (;;) {
        while (at < line.size() && IsBlank(line[at]))
            ++at;
        if (at >= line.size()) return words;
        if (words.empty() && line[at] == '#') return {};
        if (line[at] == '"') {
            words.push_back(ReadJsonString(line, at));
            if (at < line.size() && !IsBlank(line[at])) {
                throw UsageError("something follows the JSON string without a blank");
            }
            continue;
        }
        const std::size_t begin = at;
        while (at < line.size() && !IsBlank(line[at]))
            ++at;
        words.emplace_back(line.substr(begin, at - begin));
    }
}

double NumberIn(const std::string& word) {
    const auto number = ReadNumber<double>(word);
    if (!std::isfinite(number)) throw UsageError(JsonString(word) + " is not finite");
    return number;
}

int WholeNumberIn(const std::string& word, int least, int greatest) {
    const int number = ReadNumber<int>(word);
    if (number < least || number > greatest) {
        throw UsageError(word + " is not in " + std::to_string(least) + ".." + std::to_string(greatest));
    }
    return number;
}

} // namespace mirelle::driver
