// Waiting for what another program does.
#pragma once

#include <functional>
#include <string>

namespace mirelle::road {

// Looks until the condition holds. Where it never does, an error names what was awaited.
void Await(const std::string& what, const std::function<bool()>& holds);

} // namespace mirelle::road
