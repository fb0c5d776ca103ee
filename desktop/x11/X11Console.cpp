#include "desktop/x11/X11Console.h"

#include "bridge/Keystrokes.h"
#include "desktop/x11/Activation.h"
#include "desktop/x11/Connection.h"
#include "desktop/x11/KeyPlayer.h"
#include "desktop/x11/WindowFinder.h"
#include "forms/RunTimeError.h"
#include "forms/Text.h"

#include <X11/extensions/XTest.h>
#include <X11/XKBlib.h>

namespace mirelle {

struct X11Console::Desktop {
    explicit Desktop(std::unique_ptr<x11::Connection> opened)
        : connection(std::move(opened)), player(*connection) {}

    std::unique_ptr<x11::Connection> connection;
    x11::KeyPlayer player;
};

namespace {

bool CanTypeOn(const x11::Connection& connection) {
    int major = XkbMajorVersion;
    int minor = XkbMinorVersion;
    int first = 0;
    int second = 0;
    int third = 0;
    return XkbQueryExtension(connection.Server(), &first, &second, &third, &major, &minor) != 0 &&
           XTestQueryExtension(connection.Server(), &first, &second, &major, &minor) != 0;
}

template <class Desktop>
class TypingShell : public ShellObject {
public:
    explicit TypingShell(std::shared_ptr<Desktop> desktop) : desktop_(std::move(desktop)) {}
    ~TypingShell() override { desktop_->player.GiveBack(); }

    void SendKeys(const std::string& text) override { desktop_->player.Play(InterpretKeystrokes(text)); }

private:
    std::shared_ptr<Desktop> desktop_;
};

} // namespace

X11Console::X11Console() {
    std::unique_ptr<x11::Connection> connection = x11::Connection::Open();
    if (connection != nullptr && CanTypeOn(*connection))
        desktop_ = std::make_shared<Desktop>(std::move(connection));
}

X11Console::~X11Console() = default;

void X11Console::AppActivate(const std::string& title) {
    if (desktop_ != nullptr) {
        const Window window = x11::FindWindow(*desktop_->connection, title);
        if (window != None && x11::Activate(*desktop_->connection, window)) return;
    }
    throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

std::unique_ptr<ShellObject> X11Console::CreateObject(const std::string& className) {
    if (desktop_ == nullptr || CompareNoCase(className, "WScript.Shell") != 0)
        throw RunTimeError(ErrorNumber::CannotCreateObject);
    return std::make_unique<TypingShell<Desktop>>(desktop_);
}

} // namespace mirelle
