#include "desktop/x11/EscapeWatch.h"

#include <X11/keysym.h>
#include <X11/XKBlib.h>

#include <poll.h>
#include <unistd.h>

#include <utility>

namespace mirelle::x11 {

EscapeWatch::EscapeWatch(std::unique_ptr<Connection> connection)
    : connection_(std::move(connection)), raw_(*connection_) {
    // Xlib's own notes on the layout are not renewed at every change, so we keep ours.
    constexpr unsigned kLayoutChanges = XkbNewKeyboardNotifyMask | XkbMapNotifyMask;
    int opcode = 0;
    int firstError = 0;
    int major = XkbMajorVersion;
    int minor = XkbMinorVersion;
    if (XkbQueryExtension(connection_->Server(), &opcode, &layoutEvents_, &firstError, &major, &minor) != 0)
        XkbSelectEvents(connection_->Server(), XkbUseCoreKbd, kLayoutChanges, kLayoutChanges);
    raw_.Watch(RawKeys::kMasterKeyboards);
    FindEscape();
    if (pipe(endPipe_) == 0) reader_ = std::thread([this] { ReadUntilEnd(); });
}

EscapeWatch::~EscapeWatch() {
    if (!reader_.joinable()) return;
    close(endPipe_[1]);
    reader_.join();
    close(endPipe_[0]);
}

bool EscapeWatch::WentDown() {
    const std::lock_guard lock(mutex_);
    // Brings in whatever happened before this moment.
    connection_->Sync();
    TakeIn();
    return std::exchange(wentDown_, false);
}

void EscapeWatch::TakeIn() {
    while (std::optional<XEvent> event = connection_->NextEvent()) {
        if (event->type == layoutEvents_) FindEscape();
        const std::optional<RawKey> key = raw_.In(*event);
        if (key && key->pressed && escapeCodes_[key->code]) wentDown_ = true;
    }
}

void EscapeWatch::FindEscape() {
    int least = 0;
    int greatest = 0;
    int width = 0;
    XDisplayKeycodes(connection_->Server(), &least, &greatest);
    KeySym* symbols =
        XGetKeyboardMapping(connection_->Server(), KeyCode(least), greatest - least + 1, &width);
    if (symbols == nullptr) return;
    escapeCodes_.reset();
    const KeySym* first = symbols;
    for (int code = least; code <= greatest; ++code, first += width)
        escapeCodes_[std::size_t(code)] = *first == XK_Escape;
    XFree(symbols);
}

void EscapeWatch::ReadUntilEnd() {
    pollfd waits[] = {{ConnectionNumber(connection_->Server()), POLLIN, 0}, {endPipe_[0], 0, 0}};
    while (poll(waits, 2, -1) > 0 && waits[1].revents == 0) {
        const std::lock_guard lock(mutex_);
        TakeIn();
    }
}

} // namespace mirelle::x11
