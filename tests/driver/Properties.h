// The properties of controls and forms under the names that commands use.
#pragma once

#include "tests/driver/Session.h"

#include <string>

namespace mirelle::driver {

// A property's value as JSON. Throws UsageError where there is no such control or property.
std::string GetProperty(Session& session, const PropertyReference& reference);
// Changes it as the user would where a user can (then nothing happens on a disabled control), else by code.
// Throws UsageError where there is no such control or property, or nothing sets it.
void SetProperty(Session& session, const PropertyReference& reference, const std::string& word);

} // namespace mirelle::driver
