// Reading the filter text of an open dialog: name, "|", patterns parted by ";", "|", and so on.
#pragma once

#include <QStringList>

#include <string_view>

namespace mirelle {

// One entry for each pair, as a file dialog of Qt takes it: the name and, in its last brackets, the patterns
// parted by blanks. The patterns stand as they are told, also one that matches no file.
QStringList NameFilters(std::string_view filter);

} // namespace mirelle
