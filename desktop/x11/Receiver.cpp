#include "desktop/x11/Receiver.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace mirelle::x11 {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// How long a program may take to answer, and how long one that can't answer is given.
constexpr milliseconds kLongestAnswer{5000};
constexpr milliseconds kSettling{300};
// Deeper trees of windows are taken for a loop.
constexpr int kDeepestWindow = 64;

Window ParentOf(const Connection& connection, Window window) {
    Window root = None;
    Window parent = None;
    Window* children = nullptr;
    unsigned count = 0;
    if (XQueryTree(connection.Server(), window, &root, &parent, &children, &count) == 0) return None;
    if (children != nullptr) XFree(children);
    return parent == root ? None : parent;
}

bool Answers(const Connection& connection, Window window) {
    const std::vector<unsigned long> protocols = NumbersOf(connection, window, "WM_PROTOCOLS", XA_ATOM);
    return std::ranges::find(protocols, connection.Named("_NET_WM_PING")) != protocols.end();
}

bool IsOurs(const Connection& connection, Window window) {
    const std::vector<unsigned long> owner = NumbersOf(connection, window, "_NET_WM_PID", XA_CARDINAL);
    return owner.size() == 1 && owner.front() == static_cast<unsigned long>(getpid());
}

void SendPing(const Connection& connection, Window window, long stamp) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = connection.Named("WM_PROTOCOLS");
    event.xclient.format = 32;
    event.xclient.data.l[0] = long(connection.Named("_NET_WM_PING"));
    event.xclient.data.l[1] = stamp;
    event.xclient.data.l[2] = long(window);
    XSendEvent(connection.Server(), window, False, NoEventMask, &event);
}

// Input events are left for whoever watches the keyboards.
Bool IsForUs(Display*, XEvent* event, XPointer) {
    return event->type != GenericEvent ? True : False;
}

// Whether the next event for us came before the deadline.
bool NextEventBefore(const Connection& connection, Clock::time_point deadline, XEvent& event) {
    Display* server = connection.Server();
    while (XCheckIfEvent(server, &event, &IsForUs, nullptr) == False) {
        const auto left = std::chrono::duration_cast<milliseconds>(deadline - Clock::now()).count();
        if (left <= 0) return false;
        pollfd wait{ConnectionNumber(server), POLLIN, 0};
        poll(&wait, 1, int(left));
    }
    return true;
}

// A ping goes into the same queue as the keys, so the answer comes after they have been read.
bool Ping(const Connection& connection, Window window) {
    // Answers go to the root window, where whoever is interested sees all of them.
    static long lastStamp = long(getpid()) << 8;
    const long stamp = ++lastStamp & 0x7FFFFFFF;
    const auto ping = connection.Named("_NET_WM_PING");
    XSelectInput(connection.Server(), connection.Root(), SubstructureNotifyMask);
    SendPing(connection, window, stamp);
    const Clock::time_point deadline = Clock::now() + kLongestAnswer;
    XEvent event;
    bool answered = false;
    while (!answered && NextEventBefore(connection, deadline, event)) {
        answered = event.type == ClientMessage && event.xclient.window == connection.Root() &&
                   Atom(event.xclient.data.l[0]) == ping && event.xclient.data.l[1] == stamp;
    }
    XSelectInput(connection.Server(), connection.Root(), NoEventMask);
    return answered;
}

} // namespace

Window FocusedWindow(const Connection& connection) {
    Window focus = None;
    int revertTo = 0;
    XGetInputFocus(connection.Server(), &focus, &revertTo);
    return focus == PointerRoot ? Window(None) : focus;
}

std::vector<Window> WithParents(const Connection& connection, Window window) {
    std::vector<Window> chain;
    while (window != None && window != connection.Root() && chain.size() < kDeepestWindow) {
        chain.push_back(window);
        window = ParentOf(connection, window);
    }
    return chain;
}

Reading AwaitReading(const Connection& connection, Window window) {
    const ErrorTrap trap(connection);
    for (const Window candidate : WithParents(connection, window)) {
        if (IsOurs(connection, candidate)) return Reading::Ours;
        if (!Answers(connection, candidate)) continue;
        return Ping(connection, candidate) ? Reading::Done : Reading::Unknown;
    }
    std::this_thread::sleep_for(kSettling);
    return Reading::Unknown;
}

} // namespace mirelle::x11
