// clipboard_owner KIND [FILE]: another program that has the clipboard, for tests. It tells "ready" when it
// has.
//
//   serve FILE   gives the file as image/png
//   silent       says that it has an image/png and never gives it
//   dies         says so too, and ends when it is asked for it
//   text         has a text and no picture
#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

class Owner {
public:
    Owner(std::string kind, std::vector<unsigned char> content)
        : kind_(std::move(kind)), content_(std::move(content)), display_(XOpenDisplay(nullptr)) {}
    ~Owner() {
        if (display_) XCloseDisplay(display_);
    }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;

    bool Own() {
        if (!display_) return false;
        window_ = XCreateSimpleWindow(display_, DefaultRootWindow(display_), 0, 0, 1, 1, 0, 0, 0);
        const Atom clipboard = Named("CLIPBOARD");
        XSetSelectionOwner(display_, clipboard, window_, CurrentTime);
        return XGetSelectionOwner(display_, clipboard) == window_;
    }

    // Returns when another program has taken the clipboard, or as the kind wants it.
    void Answer() {
        for (;;) {
            XEvent event;
            XNextEvent(display_, &event);
            if (event.type == SelectionClear) return;
            if (event.type == SelectionRequest && !Answer(event.xselectionrequest)) return;
        }
    }

private:
    Atom Named(const char* name) { return XInternAtom(display_, name, False); }
    Atom Offered() { return kind_ == "text" ? Named("UTF8_STRING") : Named("image/png"); }

    bool Answer(const XSelectionRequestEvent& request) {
        const Atom property = request.property == None ? request.target : request.property;
        if (request.target == Named("TARGETS")) {
            const Atom targets[] = {Named("TARGETS"), Offered()};
            XChangeProperty(display_, request.requestor, property, XA_ATOM, 32, PropModeReplace,
                            reinterpret_cast<const unsigned char*>(targets), 2);
            Notify(request, property);
        } else if (request.target == Offered()) {
            if (kind_ == "dies") return false;
            if (kind_ == "silent") return true;
            XChangeProperty(display_, request.requestor, property, Offered(), 8, PropModeReplace,
                            content_.data(), static_cast<int>(content_.size()));
            Notify(request, property);
        } else {
            Notify(request, None);
        }
        return true;
    }

    void Notify(const XSelectionRequestEvent& request, Atom property) {
        XEvent answer{};
        answer.xselection.type = SelectionNotify;
        answer.xselection.requestor = request.requestor;
        answer.xselection.selection = request.selection;
        answer.xselection.target = request.target;
        answer.xselection.property = property;
        answer.xselection.time = request.time;
        XSendEvent(display_, request.requestor, False, 0, &answer);
        XFlush(display_);
    }

    std::string kind_;
    std::vector<unsigned char> content_;
    Display* display_;
    Window window_ = 0;
};

} // namespace

int main(int count, char** arguments) {
    const std::string kind = count > 1 ? arguments[1] : "";
    std::vector<unsigned char> content = {'w', 'o', 'r', 'd', 's'};
    if (count > 2) {
        std::ifstream file(arguments[2], std::ios::binary);
        content.assign(std::istreambuf_iterator<char>(file), {});
    }
    Owner owner(kind, content);
    if (!owner.Own()) return 1;
    std::puts("ready");
    std::fflush(stdout);
    owner.Answer();
}
