// A window that records what is typed into it, as the program behind a console window would read it.
//
//   recording_console TITLE [--no-ping] [--no-focus] [--keys]
//
//   --no-ping    takes no part in _NET_WM_PING
//   --no-focus   asks the window manager never to give it the focus
//   --keys       records every press and release ("+Shift_L +A -A -Shift_L") instead of the text
//
// It writes its window's number as a line on standard output when the window is there. At a message
// MIRELLE_READ it writes the length of its record in bytes as a line, then the record, and begins a new one.
// It ends at a message MIRELLE_END, or when its standard input ends.
#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <poll.h>
#include <unistd.h>

namespace {

struct Options {
    bool pings = true;
    bool takesFocus = true;
    bool recordsKeys = false;
};

class Console {
public:
    Console(Display* display, const char* title, Options options) : display_(display), options_(options) {
        window_ = XCreateSimpleWindow(display_, DefaultRootWindow(display_), 0, 0, 300, 200, 0, 0, 0);
        Xutf8SetWMProperties(display_, window_, title, title, nullptr, 0, nullptr, nullptr, nullptr);
        XChangeProperty(display_, window_, Named("_NET_WM_NAME"), Named("UTF8_STRING"), 8, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(title),
                        int(std::char_traits<char>::length(title)));
        XWMHints hints{};
        hints.flags = InputHint;
        hints.input = options_.takesFocus ? True : False;
        XSetWMHints(display_, window_, &hints);
        Atom protocols[] = {Named("WM_DELETE_WINDOW"), Named("_NET_WM_PING")};
        XSetWMProtocols(display_, window_, protocols, options_.pings ? 2 : 1);
        XIM method = XOpenIM(display_, nullptr, nullptr, nullptr);
        context_ = XCreateIC(method, XNInputStyle, XIMPreeditNothing | XIMStatusNothing, XNClientWindow,
                             window_, nullptr);
        if (context_ == nullptr) std::exit(3);
        XSelectInput(display_, window_,
                     KeyPressMask | KeyReleaseMask | StructureNotifyMask | FocusChangeMask);
        XkbSetDetectableAutoRepeat(display_, True, nullptr);
        XMapWindow(display_, window_);
    }

    // Whether the window goes on.
    bool Handle(XEvent& event) {
        if (event.type == MappingNotify) XRefreshKeyboardMapping(&event.xmapping);
        if (event.type == MapNotify) {
            std::printf("%lu\n", window_);
            std::fflush(stdout);
        }
        if (event.type == FocusIn) XSetICFocus(context_);
        if (event.type == ClientMessage) return HandleMessage(event.xclient);
        if (options_.recordsKeys && (event.type == KeyPress || event.type == KeyRelease)) {
            RecordKey(event.xkey);
            return true;
        }
        if (XFilterEvent(&event, None) == 0 && event.type == KeyPress) RecordText(event.xkey);
        return true;
    }

private:
    Atom Named(const char* name) const { return XInternAtom(display_, name, False); }

    bool HandleMessage(XClientMessageEvent& message) {
        if (message.message_type == Named("MIRELLE_END")) return false;
        if (message.message_type == Named("MIRELLE_READ")) {
            std::printf("%zu\n", record_.size());
            std::fwrite(record_.data(), 1, record_.size(), stdout);
            std::fflush(stdout);
            record_.clear();
        }
        if (message.message_type == Named("WM_PROTOCOLS") &&
            Atom(message.data.l[0]) == Named("_NET_WM_PING")) {
            XEvent answer{};
            answer.xclient = message;
            answer.xclient.window = DefaultRootWindow(display_);
            XSendEvent(display_, DefaultRootWindow(display_), False,
                       SubstructureRedirectMask | SubstructureNotifyMask, &answer);
        }
        return true;
    }

    void RecordKey(XKeyEvent& key) {
        const char* name = XKeysymToString(XLookupKeysym(&key, 0));
        if (!record_.empty()) record_ += ' ';
        record_ += key.type == KeyPress ? '+' : '-';
        record_ += name != nullptr ? name : "?";
    }

    // Characters as they are; a key with Ctrl or Alt, or one that gives no character, as <Ctrl+Left>.
    void RecordText(XKeyEvent& key) {
        std::array<char, 64> bytes{};
        KeySym symbol = NoSymbol;
        Status status = 0;
        const int count =
            Xutf8LookupString(context_, &key, bytes.data(), int(bytes.size()), &symbol, &status);
        if (IsModifierKey(symbol) || (symbol >= 0xFE01 && symbol <= 0xFE0F)) return;
        const bool chord = (key.state & (ControlMask | Mod1Mask)) != 0;
        if (!chord && (status == XLookupChars || status == XLookupBoth)) {
            record_.append(bytes.data(), std::size_t(count));
            return;
        }
        const char* name = XKeysymToString(symbol);
        record_ += '<';
        if ((key.state & ShiftMask) != 0) record_ += "Shift+";
        if ((key.state & ControlMask) != 0) record_ += "Ctrl+";
        if ((key.state & Mod1Mask) != 0) record_ += "Alt+";
        record_ += name != nullptr ? name : "nothing";
        record_ += '>';
    }

    Display* display_;
    Options options_;
    Window window_ = None;
    XIC context_ = nullptr;
    std::string record_;
};

bool InputEnded() {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    if (poll(&input, 1, 0) <= 0) return false;
    char byte = 0;
    return read(STDIN_FILENO, &byte, 1) <= 0;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 2) return 2;
    Options options;
    for (int i = 2; i < count; ++i) {
        const std::string option = arguments[i];
        if (option == "--no-ping") options.pings = false;
        if (option == "--no-focus") options.takesFocus = false;
        if (option == "--keys") options.recordsKeys = true;
    }
    std::setlocale(LC_ALL, "C.UTF-8");
    XSetLocaleModifiers("@im=none");
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) return 1;
    Console console(display, arguments[1], options);
    for (;;) {
        while (XPending(display) > 0) {
            XEvent event;
            XNextEvent(display, &event);
            if (!console.Handle(event)) return 0;
        }
        pollfd waits[] = {{ConnectionNumber(display), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
        poll(waits, 2, -1);
        if (InputEnded()) return 0;
    }
}
