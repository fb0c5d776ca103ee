#include "library/Library.h"

namespace mirelle {

Library::Library(FrmPicX&) {}

} // namespace mirelle
