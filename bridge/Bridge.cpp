#include "bridge/Bridge.h"

namespace mirelle {

Bridge::Bridge(FrmPicX&) {}

} // namespace mirelle
