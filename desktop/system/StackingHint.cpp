#include "desktop/system/StackingHint.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#ifdef MIRELLE_X11
#include <QtGui/qguiapplication_platform.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#elif defined(_WIN32)
#include "desktop/windows/TopMost.h"
#endif

namespace mirelle {
namespace {

#ifdef MIRELLE_X11

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

xcb_atom_t Atom(xcb_connection_t* connection, const char* name) {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr),
                                               &std::free);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

// Asks the window manager, as the hints for window managers want it for a window that is shown.
bool AskWindowManager(xcb_connection_t* connection, xcb_window_t window, bool above) {
    constexpr std::uint32_t kRemove = 0;
    constexpr std::uint32_t kAdd = 1;
    constexpr std::uint32_t kFromApplication = 1;
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = Atom(connection, "_NET_WM_STATE");
    message.data.data32[0] = above ? kAdd : kRemove;
    message.data.data32[1] = Atom(connection, "_NET_WM_STATE_ABOVE");
    message.data.data32[3] = kFromApplication;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_send_event(connection, 0, root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    return xcb_flush(connection) > 0;
}

#endif

} // namespace

bool KeepAbove(QWidget& window, bool above) {
#ifdef MIRELLE_X11
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 && window.isVisible()) {
        // The flag is kept in step without setWindowFlag, which would hide the window.
        window.windowHandle()->setFlag(Qt::WindowStaysOnTopHint, above);
        return AskWindowManager(x11->connection(), static_cast<xcb_window_t>(window.winId()), above);
    }
#elif defined(_WIN32)
    if (window.isVisible()) return windows::SetTopMost(window.winId(), above);
#endif
    if (window.isVisible() && window.windowHandle()) {
        window.windowHandle()->setFlag(Qt::WindowStaysOnTopHint, above);
        return true;
    }
    window.setWindowFlag(Qt::WindowStaysOnTopHint, above);
    return true;
}

} // namespace mirelle
