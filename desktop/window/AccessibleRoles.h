// Tells screen readers what the program's own widgets are: panels, pictures, texts. Widgets of Qt tell it
// themselves.
#pragma once

namespace mirelle {

// For the whole application; more than once does no harm.
void InstallAccessibleRoles();

} // namespace mirelle
