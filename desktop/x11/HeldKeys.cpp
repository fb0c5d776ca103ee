#include "desktop/x11/HeldKeys.h"

#include <X11/extensions/XInput2.h>
#include <X11/extensions/XTest.h>
#include <X11/XKBlib.h>

#include <algorithm>
#include <string_view>

namespace mirelle::x11 {
namespace {

constexpr int kKeyCodes = 256;

bool IsDown(const char* bits, int code) {
    return (static_cast<unsigned char>(bits[code / 8]) >> (code % 8) & 1) != 0;
}

bool AnyKeyDown(const Connection& connection) {
    std::array<char, kKeyCodes / 8> bits{};
    XQueryKeymap(connection.Server(), bits.data());
    return std::ranges::any_of(bits, [](char byte) { return byte != 0; });
}

// The keys that hold a modifier or another layout while they are down. Keys that lock are none: another press
// would lock or unlock once more.
std::array<bool, kKeyCodes> FindModifierKeys(const Connection& connection) {
    std::array<bool, kKeyCodes> isModifier{};
    XkbDescPtr xkb = XkbGetMap(connection.Server(), XkbAllMapComponentsMask, XkbUseCoreKbd);
    if (xkb == nullptr) return isModifier;
    for (int code = xkb->min_key_code; code <= xkb->max_key_code; ++code) {
        if (XkbKeyNumGroups(xkb, code) == 0 || !XkbKeyHasActions(xkb, code)) continue;
        const XkbAction* action = XkbKeyActionEntry(xkb, code, 0, 0);
        const int type = action != nullptr ? action->type : XkbSA_NoAction;
        isModifier[std::size_t(code)] = type == XkbSA_SetMods || type == XkbSA_LatchMods ||
                                        type == XkbSA_SetGroup || type == XkbSA_LatchGroup;
    }
    XkbFreeKeyboard(xkb, XkbAllComponentsMask, True);
    return isModifier;
}

// The master keyboard that our fake keys come from.
int MasterKeyboard(Display* server) {
    int pointer = 0;
    int master = 0;
    if (XIGetClientPointer(server, None, &pointer) == 0) return 0;
    int count = 0;
    XIDeviceInfo* info = XIQueryDevice(server, pointer, &count);
    if (info != nullptr && count == 1) master = info->attachment;
    if (info != nullptr) XIFreeDeviceInfo(info);
    return master;
}

} // namespace

// One keyboard that is plugged in.
class HeldKeys::Keyboard {
public:
    Keyboard(Display* server, const XIDeviceInfo& info)
        : server_(server), id_(info.deviceid),
          isFake_(std::string_view(info.name).find("XTEST") != std::string_view::npos),
          device_(XOpenDevice(server, XID(info.deviceid))) {}
    ~Keyboard() {
        if (device_ != nullptr) XCloseDevice(server_, device_);
    }
    Keyboard(const Keyboard&) = delete;
    Keyboard& operator=(const Keyboard&) = delete;

    int Id() const { return id_; }
    // Whether its keys are pressed by programs, ourselves among them.
    bool IsFake() const { return isFake_; }

    std::vector<KeyCode> KeysDown() const {
        std::vector<KeyCode> down;
        XDeviceState* state = device_ != nullptr ? XQueryDeviceState(server_, device_) : nullptr;
        if (state == nullptr) return down;
        const XInputClass* part = state->data;
        for (int i = 0; i < state->num_classes; ++i) {
            if (part->c_class == KeyClass) {
                const auto* keys = reinterpret_cast<const XKeyState*>(part);
                for (int code = 0; code < kKeyCodes; ++code)
                    if (IsDown(keys->keys, code)) down.push_back(KeyCode(code));
            }
            part = reinterpret_cast<const XInputClass*>(reinterpret_cast<const char*>(part) + part->length);
        }
        XFreeDeviceState(state);
        return down;
    }

    void Send(KeyCode code, bool press) const {
        XTestFakeDeviceKeyEvent(server_, device_, code, press ? True : False, nullptr, 0, 0);
    }

private:
    Display* server_;
    int id_;
    bool isFake_;
    XDevice* device_;
};

HeldKeys::HeldKeys(const Connection& connection) : connection_(connection), raw_(connection) {
    if (!AnyKeyDown(connection)) return;
    Find();
    const std::array<bool, kKeyCodes> isModifier = FindModifierKeys(connection);
    for (const auto& keyboard : keyboards_) {
        if (!keyboard->IsFake()) raw_.Watch(keyboard->Id());
        for (const KeyCode code : keyboard->KeysDown()) {
            keyboard->Send(code, false);
            if (isModifier[code]) modifiers_.push_back({keyboard.get(), code});
        }
    }
    connection_.Sync();
    // These were our own releases.
    while (connection_.NextEvent()) {
    }
}

HeldKeys::~HeldKeys() {
    if (keyboards_.empty()) return;
    connection_.Sync();
    ForgetReleased();
    for (const Held& held : modifiers_)
        held.keyboard->Send(held.code, true);
    for (const auto& keyboard : keyboards_)
        if (!keyboard->IsFake()) raw_.Ignore(keyboard->Id());
    connection_.Sync();
}

void HeldKeys::Find() {
    const int master = MasterKeyboard(connection_.Server());
    int count = 0;
    XIDeviceInfo* infos = XIQueryDevice(connection_.Server(), XIAllDevices, &count);
    for (int i = 0; i < count; ++i)
        if (infos[i].use == XISlaveKeyboard && infos[i].attachment == master)
            keyboards_.push_back(std::make_unique<Keyboard>(connection_.Server(), infos[i]));
    if (infos != nullptr) XIFreeDeviceInfo(infos);
}

// Fake keyboards are not watched, as our own keys are theirs too: what a program holds comes back.
void HeldKeys::ForgetReleased() {
    while (std::optional<XEvent> event = connection_.NextEvent()) {
        const std::optional<RawKey> key = raw_.In(*event);
        if (!key || key->pressed) continue;
        std::erase_if(modifiers_, [&](const Held& held) {
            return held.code == key->code && held.keyboard->Id() == key->device;
        });
    }
}

} // namespace mirelle::x11
