#include "tests/desktop/x11/X11Desktop.h"

#include "desktop/x11/WindowFinder.h"
#include "forms/Utf8.h"

#include <X11/extensions/XInput2.h>
#include <X11/extensions/XTest.h>
#include <X11/XKBlib.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <stdexcept>
#include <string_view>
#include <thread>

namespace mirelle::test {
namespace {

std::unique_ptr<x11::Connection> Connect() {
    auto connection = x11::Connection::Open();
    if (connection == nullptr) throw std::runtime_error("these tests run under tests/support/with_display");
    return connection;
}

XkbStateRec StateOf(const x11::Connection& server) {
    XkbStateRec state{};
    XkbGetState(server.Server(), XkbUseCoreKbd, &state);
    return state;
}

// The only keyboard of the virtual server that is not a program's.
int KeyboardNumber(Display* display) {
    int count = 0;
    int number = 0;
    XIDeviceInfo* infos = XIQueryDevice(display, XIAllDevices, &count);
    for (int i = 0; i < count; ++i)
        if (infos[i].use == XISlaveKeyboard &&
            std::string_view(infos[i].name).find("XTEST") == std::string::npos)
            number = infos[i].deviceid;
    XIFreeDeviceInfo(infos);
    if (number == 0) throw std::runtime_error("the server has no keyboard");
    return number;
}

} // namespace

X11Desktop::X11Desktop() : server_(Connect()) {
    int opcode = 0;
    int firstError = 0;
    XkbQueryExtension(server_->Server(), &opcode, &mappingEvents_, &firstError, nullptr, nullptr);
    constexpr unsigned kChanges = XkbNewKeyboardNotifyMask | XkbMapNotifyMask;
    XkbSelectEvents(server_->Server(), XkbUseCoreKbd, kChanges, kChanges);
    UseLayout("us");
    LockModifiers(0);
}

X11Desktop::~X11Desktop() {
    LockModifiers(0);
    RunProgram({"setxkbmap", "-layout", "us", "-option", ""});
}

void X11Desktop::UseLayout(const std::string& layout, int group) {
    ASSERT_EQ(RunProgram({"setxkbmap", "-layout", layout}), 0) << layout;
    XkbLockGroup(server_->Server(), XkbUseCoreKbd, unsigned(group));
    server_->Sync();
    MappingChanges();
}

void X11Desktop::UseLayoutOnKeyboard(const std::string& layout) {
    const std::string number = std::to_string(KeyboardNumber(server_->Server()));
    ASSERT_EQ(RunProgram({"setxkbmap", "-device", number, "-layout", layout}), 0) << layout;
}

void X11Desktop::LockModifiers(unsigned modifiers) {
    XkbLockModifiers(server_->Server(), XkbUseCoreKbd, 0xFF, modifiers);
    server_->Sync();
}

unsigned X11Desktop::LockedModifiers() const {
    return StateOf(*server_).locked_mods;
}

unsigned X11Desktop::HeldModifiers() const {
    return StateOf(*server_).base_mods;
}

int X11Desktop::LockedGroup() const {
    return StateOf(*server_).locked_group;
}

bool X11Desktop::IsDown(KeySym symbol) const {
    std::array<char, 32> bits{};
    XQueryKeymap(server_->Server(), bits.data());
    const KeyCode code = CodeOf(symbol);
    return (static_cast<unsigned char>(bits[code / 8U]) >> (code % 8U) & 1) != 0;
}

void X11Desktop::Press(KeySym symbol) {
    XTestFakeKeyEvent(server_->Server(), CodeOf(symbol), True, 0);
    server_->Sync();
}

void X11Desktop::Release(KeySym symbol) {
    XTestFakeKeyEvent(server_->Server(), CodeOf(symbol), False, 0);
    server_->Sync();
}

void X11Desktop::PressOnKeyboard(KeySym symbol) {
    SendOnKeyboard(symbol, true);
}

void X11Desktop::ReleaseOnKeyboard(KeySym symbol) {
    SendOnKeyboard(symbol, false);
}

void X11Desktop::SendOnKeyboard(KeySym symbol, bool press) {
    XDevice* keyboard = XOpenDevice(server_->Server(), XID(KeyboardNumber(server_->Server())));
    const KeyCode code = CodeOf(symbol);
    XTestFakeDeviceKeyEvent(server_->Server(), keyboard, code, press ? True : False, nullptr, 0, 0);
    XCloseDevice(server_->Server(), keyboard);
    server_->Sync();
}

// As the server knows it: what Xlib remembers is not renewed at every change.
KeyCode X11Desktop::CodeOf(KeySym symbol) const {
    int least = 0;
    int greatest = 0;
    XDisplayKeycodes(server_->Server(), &least, &greatest);
    const std::vector<KeySym> mapping = KeyboardMapping();
    const std::size_t width = mapping.size() / std::size_t(greatest - least + 1);
    const auto found = std::ranges::find(mapping, symbol);
    if (found == mapping.end()) throw std::runtime_error("no key gives this symbol");
    return KeyCode(std::size_t(least) + std::size_t(found - mapping.begin()) / width);
}

std::vector<KeySym> X11Desktop::KeyboardMapping() const {
    int least = 0;
    int greatest = 0;
    int width = 0;
    XDisplayKeycodes(server_->Server(), &least, &greatest);
    const int count = greatest - least + 1;
    KeySym* symbols = XGetKeyboardMapping(server_->Server(), KeyCode(least), count, &width);
    std::vector<KeySym> mapping(symbols, symbols + std::ptrdiff_t(count) * width);
    XFree(symbols);
    return mapping;
}

int X11Desktop::MappingChanges() {
    server_->Sync();
    int changes = 0;
    while (const std::optional<XEvent> event = server_->NextEvent())
        if (event->type == mappingEvents_) ++changes;
    return changes;
}

// In one request, as each change keeps the window manager busy for a while.
void X11Desktop::FillKeys(const std::function<bool(const std::vector<KeySym>&)>& fits, KeySym symbol) {
    int least = 0;
    int greatest = 0;
    XDisplayKeycodes(server_->Server(), &least, &greatest);
    std::vector<KeySym> mapping = KeyboardMapping();
    const auto width = std::ptrdiff_t(mapping.size()) / (greatest - least + 1);
    for (auto row = mapping.begin(); row != mapping.end(); row += width) {
        if (!fits({row, row + width})) continue;
        std::fill(row, row + width, NoSymbol);
        *row = symbol;
    }
    XChangeKeyboardMapping(server_->Server(), least, int(width), mapping.data(), greatest - least + 1);
    MappingChanges();
}

void X11Desktop::AwaitWindow(const std::string& title) const {
    WaitUntil([&] { return x11::FindWindow(*server_, title) != None; });
}

std::unique_ptr<ShellObject> X11Desktop::ShellFor(const std::string& title) {
    AwaitWindow(title);
    console_.AppActivate(title);
    return console_.CreateObject("WScript.Shell");
}

std::string Literally(const std::string& text) {
    std::string written;
    for (const char c : text) {
        if (std::string_view("+^%~(){}").find(c) != std::string_view::npos)
            written += std::string{'{', c, '}'};
        else
            written += c;
    }
    return written;
}

std::string RareCharacters(int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
        AppendCharacter(text, char32_t(0x4E00 + i * 7));
    return text;
}

void WaitUntil(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!condition()) {
        ASSERT_LT(std::chrono::steady_clock::now(), deadline) << "the condition never held";
        std::this_thread::yield();
    }
}

} // namespace mirelle::test
