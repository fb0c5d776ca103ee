// Any bytes as lines of the driver's input: words or a usage error, and every word written as JSON reads
// back.
#include "forms/Utf8.h"
#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"
#include "tests/driver/LineReader.h"
#include "tests/driver/References.h"

#include <cstdlib>
#include <sstream>

using namespace mirelle::driver;

namespace {

// The text with a replacement character for each byte that is no UTF-8, as answers show it.
std::string Shown(std::string_view text) {
    std::string shown;
    while (!text.empty()) {
        const mirelle::Utf8Character character = mirelle::FirstCharacter(text);
        mirelle::AppendCharacter(shown, character.IsMalformed() ? 0xFFFD : character.code);
        text.remove_prefix(character.bytes);
    }
    return shown;
}

void CheckWord(const std::string& word) {
    const std::string json = JsonString(word);
    std::size_t at = 0;
    if (ReadJsonString(json, at) != Shown(word) || at != json.size()) std::abort();
    for (const char c : json)
        if (static_cast<unsigned char>(c) < 0x20) std::abort();
    try {
        PropertyReferenceIn(word);
    } catch (const UsageError&) {
    }
    try {
        NumberIn(word);
    } catch (const UsageError&) {
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream input(std::string(reinterpret_cast<const char*>(data), size));
    while (const auto line = ReadLine(input)) {
        try {
            for (const std::string& word : WordsOf(*line))
                CheckWord(word);
        } catch (const UsageError&) {
        }
    }
    return 0;
}
