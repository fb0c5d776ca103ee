#include "tools/road/Desk.h"

// Ahead of Xlib, whose macros break them.
#include <QImage>
#include <QString>

#include "desktop/x11/Connection.h"
#include "desktop/x11/WindowFinder.h"

#include <X11/extensions/XTest.h>
#include <X11/Xutil.h>

#include <stdexcept>

namespace mirelle::road {
namespace {

constexpr unsigned kLeftButton = 1;

} // namespace

struct Desk::Server {
    std::unique_ptr<x11::Connection> connection = x11::Connection::Open();

    Display* Show() const { return connection->Server(); }

    Window WindowOf(const std::string& title) const {
        const Window window = x11::FindWindow(*connection, title);
        if (window == 0) throw std::runtime_error("no window is titled " + title);
        return window;
    }

    QImage Pixels(const Place& place) const {
        XImage* seen = XGetImage(Show(), connection->Root(), place.x, place.y, unsigned(place.width),
                                 unsigned(place.height), AllPlanes, ZPixmap);
        if (seen == nullptr) throw std::runtime_error("the screen can't be read");
        QImage pixels(place.width, place.height, QImage::Format_RGB32);
        for (int y = 0; y < place.height; ++y)
            for (int x = 0; x < place.width; ++x)
                pixels.setPixel(x, y, 0xFF000000 | unsigned(XGetPixel(seen, x, y)));
        XDestroyImage(seen);
        return pixels;
    }
};

Desk::Desk() : server_(std::make_unique<Server>()) {
    if (server_->connection == nullptr) throw std::runtime_error("there is no display");
}

Desk::~Desk() = default;

void Desk::MovePointer(int x, int y) {
    XTestFakeMotionEvent(server_->Show(), -1, x, y, CurrentTime);
    server_->connection->Sync();
}

void Desk::PressButton() {
    XTestFakeButtonEvent(server_->Show(), kLeftButton, True, CurrentTime);
    server_->connection->Sync();
}

void Desk::ReleaseButton() {
    XTestFakeButtonEvent(server_->Show(), kLeftButton, False, CurrentTime);
    server_->connection->Sync();
}

void Desk::Click(const Place& place) {
    MovePointer(place.MiddleX(), place.MiddleY());
    PressButton();
    ReleaseButton();
}

unsigned Desk::ColourAt(int x, int y) const {
    return server_->Pixels({x, y, 1, 1}).pixel(0, 0) & 0xFFFFFF;
}

void Desk::TakePicture(const std::string& file) const {
    const Screen* screen = DefaultScreenOfDisplay(server_->Show());
    const QImage pixels = server_->Pixels({0, 0, screen->width, screen->height});
    if (!pixels.save(QString::fromStdString(file), "PNG")) throw std::runtime_error("cannot write " + file);
}

void Desk::PlaceWindow(const std::string& title, const Place& place) {
    const Window window = server_->WindowOf(title);
    XMoveResizeWindow(server_->Show(), window, place.x, place.y, unsigned(place.width),
                      unsigned(place.height));
    server_->connection->Sync();
}

void Desk::CloseWindow(const std::string& title) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = server_->WindowOf(title);
    event.xclient.message_type = server_->connection->Named("_NET_CLOSE_WINDOW");
    event.xclient.format = 32;
    event.xclient.data.l[0] = CurrentTime;
    event.xclient.data.l[1] = 2; // a user's wish
    XSendEvent(server_->Show(), server_->connection->Root(), False,
               SubstructureRedirectMask | SubstructureNotifyMask, &event);
    server_->connection->Sync();
}

} // namespace mirelle::road
