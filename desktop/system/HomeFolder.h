// The folder that holds Support: where the program's data lie.
#pragma once

#include <QStringList>

#include <string>

namespace mirelle {

// The folder that the option --home DIR names; else the program's own folder. A developer's build stands
// apart from the data and is started with --home.
std::string HomeFolder(const QStringList& arguments);

} // namespace mirelle
