#include "tests/driver/Scenario.h"

#include "forms/Text.h"
#include "tests/driver/Errors.h"
#include "tests/driver/LineReader.h"

namespace mirelle::driver {
namespace {

constexpr std::string_view kAnswerMark = "=>";
constexpr std::string_view kMore = "...";

// "@/" at the beginning of a word or of a JSON string.
std::string WithFolder(std::string line, const std::string& folder) {
    for (std::size_t at = line.find("@/"); at != std::string::npos; at = line.find("@/", at + 1)) {
        if (at > 0 && line[at - 1] != ' ' && line[at - 1] != '"') continue;
        line.replace(at, 1, folder);
    }
    return line;
}

Step StepOf(const std::string& line, int number) {
    const std::size_t mark = line.find(kAnswerMark);
    if (mark == std::string::npos) return {number, Trim(line), "ok"};
    return {number, Trim(line.substr(0, mark)), Trim(line.substr(mark + kAnswerMark.size()))};
}

} // namespace

Scenario ReadScenario(std::string_view text, const std::string& folder) {
    Scenario scenario;
    int number = 0;
    for (const std::string& raw : Split(text, "\n")) {
        const std::string line = Trim(raw.ends_with('\r') ? raw.substr(0, raw.size() - 1) : raw);
        ++number;
        if (line.empty() || line.front() == '#') continue;
        if (line.front() == '!') {
            const std::vector<std::string> words = WordsOf(line.substr(1));
            if (words.empty()) throw UsageError("line " + std::to_string(number) + " has no directive");
            scenario.directives.push_back({number, words});
        } else {
            scenario.steps.push_back(StepOf(WithFolder(line, folder), number));
        }
    }
    return scenario;
}

bool IsExpected(const Step& step, std::string_view answer) {
    const std::string_view wanted = step.answer;
    if (!wanted.ends_with(kMore)) return answer == wanted;
    return answer.starts_with(wanted.substr(0, wanted.size() - kMore.size()));
}

} // namespace mirelle::driver
