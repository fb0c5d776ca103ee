#include "bench/start/FirstDrawing.h"

#include <chrono>
#include <csignal>
#include <stdexcept>

#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <X11/extensions/Xdamage.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace mirelle::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kMostSeconds = 30;

// A window may be gone before we ask about it.
int PassOver(::Display*, XErrorEvent*) {
    return 0;
}

// The bench itself runs without a screen; what it starts is to have one.
std::vector<std::string> EnvironmentWithScreen() {
    std::vector<std::string> variables{"QT_QPA_PLATFORM=xcb", "QT_LOGGING_RULES=*.warning=false"};
    for (char** variable = environ; *variable != nullptr; ++variable) {
        if (!std::string(*variable).starts_with("QT_QPA_PLATFORM=")) variables.emplace_back(*variable);
    }
    return variables;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

class Child {
public:
    explicit Child(std::vector<std::string> command) {
        std::vector<std::string> environment = EnvironmentWithScreen();
        const int failure = ::posix_spawn(&process_, command[0].c_str(), nullptr, nullptr,
                                          Pointers(command).data(), Pointers(environment).data());
        if (failure != 0) throw std::runtime_error(command[0] + " can't be started");
    }
    ~Child() {
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    pid_t Process() const { return process_; }

private:
    pid_t process_ = 0;
};

} // namespace

struct FirstDrawing::Server {
    ::Display* display = ::XOpenDisplay(nullptr);
    int damageEvent = 0;
    Atom process = None;

    Server() {
        int error = 0;
        if (display == nullptr || XDamageQueryExtension(display, &damageEvent, &error) == 0)
            throw std::runtime_error("no display that tells of drawings");
        ::XSetErrorHandler(PassOver);
        process = ::XInternAtom(display, "_NET_WM_PID", False);
        ::XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
        ::XSync(display, False);
    }
    ~Server() {
        if (display != nullptr) ::XCloseDisplay(display);
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    XEvent NextEvent(Clock::time_point end) const {
        while (::XPending(display) == 0) {
            const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
            pollfd ready{ConnectionNumber(display), POLLIN, 0};
            if (left.count() <= 0 || ::poll(&ready, 1, static_cast<int>(left.count())) == 0)
                throw std::runtime_error("nothing was drawn");
        }
        XEvent event;
        ::XNextEvent(display, &event);
        return event;
    }

    // As the program itself says; a window manager's frames say nothing.
    bool IsOf(Window window, pid_t wanted) const {
        Atom type = None;
        int format = 0;
        unsigned long count = 0;
        unsigned long left = 0;
        unsigned char* data = nullptr;
        ::XGetWindowProperty(display, window, process, 0, 1, False, XA_CARDINAL, &type, &format, &count,
                             &left, &data);
        const bool is =
            count == 1 && *reinterpret_cast<unsigned long*>(data) == static_cast<unsigned long>(wanted);
        if (data != nullptr) ::XFree(data);
        return is;
    }

    // Drawings are told of from a window's making on, long before anything is drawn in it.
    void WaitForDrawing(pid_t wanted) const {
        const auto end = Clock::now() + std::chrono::seconds(kMostSeconds);
        while (true) {
            const XEvent event = NextEvent(end);
            if (event.type == CreateNotify)
                XDamageCreate(display, event.xcreatewindow.window, XDamageReportNonEmpty);
            if (event.type != damageEvent + XDamageNotify) continue;
            if (IsOf(reinterpret_cast<const XDamageNotifyEvent&>(event).drawable, wanted)) return;
        }
    }

    void ForgetEvents() const { ::XSync(display, True); }
};

FirstDrawing::FirstDrawing() : server_(std::make_unique<Server>()) {}
FirstDrawing::~FirstDrawing() = default;

double FirstDrawing::Of(const std::vector<std::string>& command) {
    server_->ForgetEvents();
    const auto start = Clock::now();
    const Child child(command);
    server_->WaitForDrawing(child.Process());
    return std::chrono::duration<double>(Clock::now() - start).count();
}

} // namespace mirelle::bench
