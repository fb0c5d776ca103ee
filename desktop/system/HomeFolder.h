// The folder that holds Support: where the program's data lie.
#pragma once

#include <QStringList>

#include <string>

namespace mirelle {

// The folder that the option --home DIR names; else the program's own folder. A program that is started by a
// link lies where the link lies: that is how each user has data of their own beside one program for all. A
// developer's build stands apart from the data and is started with --home. `arguments` begin with the
// program.
std::string HomeFolder(const QStringList& arguments);

} // namespace mirelle
