#include "desktop/x11/RawKeys.h"

#include <X11/extensions/XInput2.h>

namespace mirelle::x11 {

static_assert(RawKeys::kMasterKeyboards == XIAllMasterDevices);

RawKeys::RawKeys(const Connection& connection) : connection_(connection) {
    int opcode = 0;
    int firstEvent = 0;
    int firstError = 0;
    // From 2.1 on raw events also come while someone grabs the keyboard.
    int major = 2;
    int minor = 1;
    if (XQueryExtension(connection.Server(), "XInputExtension", &opcode, &firstEvent, &firstError) != 0 &&
        XIQueryVersion(connection.Server(), &major, &minor) == Success)
        extension_ = opcode;
}

void RawKeys::Watch(int device) {
    Select(device, true);
}

void RawKeys::Ignore(int device) {
    Select(device, false);
}

void RawKeys::Select(int device, bool wanted) const {
    if (extension_ == 0) return;
    std::array<unsigned char, XIMaskLen(XI_LASTEVENT)> bits{};
    if (wanted) {
        XISetMask(bits.data(), XI_RawKeyPress);
        XISetMask(bits.data(), XI_RawKeyRelease);
    }
    XIEventMask mask{device, int(bits.size()), bits.data()};
    XISelectEvents(connection_.Server(), connection_.Root(), &mask, 1);
}

std::optional<RawKey> RawKeys::In(XEvent& event) const {
    if (event.type != GenericEvent || event.xcookie.extension != extension_) return std::nullopt;
    if (XGetEventData(connection_.Server(), &event.xcookie) == 0) return std::nullopt;
    const auto& raw = *static_cast<const XIRawEvent*>(event.xcookie.data);
    const RawKey key{raw.deviceid, KeyCode(raw.detail), event.xcookie.evtype == XI_RawKeyPress};
    XFreeEventData(connection_.Server(), &event.xcookie);
    return key;
}

} // namespace mirelle::x11
