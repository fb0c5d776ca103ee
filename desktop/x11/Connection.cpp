#include "desktop/x11/Connection.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace mirelle::x11 {
namespace {

using ErrorHandler = int (*)(Display*, XErrorEvent*);

// The innermost trap of each thread. A connection is used by one thread at a time, and its errors are
// reported on that thread.
thread_local ErrorTrap* innermost = nullptr;
// Who handles what no trap is set for.
std::atomic<ErrorHandler> fallback = nullptr;

// Properties beyond this many 32-bit values (a list of 65536 windows, a title of 256 KB) are cut.
constexpr long kLongestProperty = 65536;

// The server has gone. Xlib would run the program's end on whichever thread noticed, the watch's too, while
// the window's thread goes on in what is being taken apart.
int EndAtOnce(Display*) {
    std::fputs("The display has gone.\n", stderr);
    std::_Exit(EXIT_FAILURE);
}

} // namespace

std::unique_ptr<Connection> Connection::Open() {
    // The keyboard's watch reads its connection on a thread of its own.
    static const Status threads = XInitThreads();
    if (threads == 0) return nullptr;
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) return nullptr;
    XSetIOErrorHandler(&EndAtOnce);
    return std::unique_ptr<Connection>(new Connection(display));
}

Connection::~Connection() {
    XCloseDisplay(display_);
}

std::optional<XEvent> Connection::NextEvent() const {
    if (XPending(display_) == 0) return std::nullopt;
    XEvent event;
    XNextEvent(display_, &event);
    return event;
}

ErrorTrap::ErrorTrap(const Connection& connection) : connection_(connection), outer_(innermost) {
    connection_.Sync();
    innermost = this;
    // Set anew each time, as others may have put in their own; never taken out, as another thread may need
    // it.
    const ErrorHandler before = XSetErrorHandler(&ErrorTrap::Handle);
    if (before != &ErrorTrap::Handle) fallback = before;
}

ErrorTrap::~ErrorTrap() {
    connection_.Sync();
    innermost = outer_;
}

int ErrorTrap::Handle(Display* display, XErrorEvent* event) {
    for (const ErrorTrap* trap = innermost; trap != nullptr; trap = trap->outer_)
        if (trap->connection_.Server() == display) return 0;
    const ErrorHandler handler = fallback;
    return handler != nullptr ? handler(display, event) : 0;
}

std::vector<unsigned long> NumbersOf(const Connection& connection, Window window, const char* property,
                                     Atom type) {
    Atom actualType = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* bytes = nullptr;
    const int result =
        XGetWindowProperty(connection.Server(), window, connection.Named(property), 0, kLongestProperty,
                           False, type, &actualType, &format, &count, &left, &bytes);
    std::vector<unsigned long> numbers;
    if (result == Success && bytes != nullptr && actualType == type && format == 32) {
        // Xlib hands out 32-bit values as longs, whatever a long's size is.
        const auto* first = reinterpret_cast<const unsigned long*>(bytes);
        numbers.assign(first, first + count);
    }
    if (bytes != nullptr) XFree(bytes);
    return numbers;
}

std::string TitleOf(const Connection& connection, Window window) {
    for (const char* name : {"_NET_WM_NAME", "WM_NAME"}) {
        XTextProperty property{};
        if (XGetTextProperty(connection.Server(), window, &property, connection.Named(name)) == 0) continue;
        std::string title;
        char** texts = nullptr;
        int count = 0;
        if (Xutf8TextPropertyToTextList(connection.Server(), &property, &texts, &count) >= 0 && count > 0)
            title = texts[0];
        if (texts != nullptr) XFreeStringList(texts);
        XFree(property.value);
        if (!title.empty()) return title;
    }
    return {};
}

void TellRoot(const Connection& connection, Window about, const char* message,
              const std::array<long, 5>& values) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = about;
    event.xclient.message_type = connection.Named(message);
    event.xclient.format = 32;
    std::ranges::copy(values, event.xclient.data.l);
    XSendEvent(connection.Server(), connection.Root(), False,
               SubstructureRedirectMask | SubstructureNotifyMask, &event);
}

} // namespace mirelle::x11
