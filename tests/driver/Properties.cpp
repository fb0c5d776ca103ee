#include "tests/driver/Properties.h"

#include "tests/driver/ControlProperties.h"
#include "tests/driver/FormProperties.h"

namespace mirelle::driver {
namespace {

[[noreturn]] void NoSuchProperty(const PropertyReference& reference) {
    throw UsageError(JsonString(TextOf(reference.owner)) + " has no property " +
                     JsonString(TextOf(reference.property)));
}

} // namespace

std::string GetProperty(Session& session, const PropertyReference& reference) {
    Form* const form = session.FindForm(reference.owner);
    const auto value =
        form ? GetFrom(FormProperties(), *form, reference.property)
             : GetFrom(ControlProperties(), session.ControlOf(reference.owner), reference.property);
    if (!value) NoSuchProperty(reference);
    return *value;
}

void SetProperty(Session& session, const PropertyReference& reference, const std::string& word) {
    Form* const form = session.FindForm(reference.owner);
    const bool set =
        form ? SetIn(FormProperties(), *form, reference.property, word)
             : SetIn(ControlProperties(), session.ControlOf(reference.owner), reference.property, word);
    if (!set) NoSuchProperty(reference);
}

} // namespace mirelle::driver
