#include "tests/driver/References.h"

#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"
#include "tests/driver/LineReader.h"

#include <limits>

namespace mirelle::driver {

Reference ReferenceIn(const std::string& text) {
    const std::size_t open = text.find('(');
    if (open == std::string::npos) return {text, -1};
    if (text.back() != ')') throw UsageError(JsonString(text) + " has no closing bracket");
    return {text.substr(0, open),
            WholeNumberIn(text.substr(open + 1, text.size() - open - 2), 0, std::numeric_limits<int>::max())};
}

PropertyReference PropertyReferenceIn(const std::string& text) {
    const std::size_t point = text.find('.');
    if (point == std::string::npos) throw UsageError(JsonString(text) + " is no CONTROL.PROPERTY");
    return {ReferenceIn(text.substr(0, point)), ReferenceIn(text.substr(point + 1))};
}

std::string TextOf(const Reference& reference) {
    return reference.index < 0 ? reference.name
                               : reference.name + "(" + std::to_string(reference.index) + ")";
}

} // namespace mirelle::driver
