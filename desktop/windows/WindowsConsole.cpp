#include "desktop/windows/WindowsConsole.h"

#include "bridge/Keystrokes.h"
#include "desktop/windows/KeyPlayer.h"
#include "desktop/windows/ScriptShell.h"
#include "desktop/windows/VirtualKeys.h"
#include "desktop/windows/WindowFinder.h"
#include "forms/RunTimeError.h"
#include "forms/Text.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace mirelle {
namespace {

// Whether the layout has every character under a key that gives it at once. The system's own shell object
// types by the layout's keys alone, and by what Caps Lock makes of them.
bool LayoutHasAll(const std::vector<KeyStroke>& strokes) {
    if ((GetKeyState(VK_CAPITAL) & 1) != 0) return false;
    const HKL layout = windows::LayoutOfFocus();
    return std::ranges::all_of(strokes, [layout](const KeyStroke& stroke) {
        return stroke.key != Key::Character || windows::CharacterKey(stroke.character, layout).has_value();
    });
}

// The system's shell object types what it can; the rest is played here.
class TypingShell : public ShellObject {
public:
    explicit TypingShell(std::unique_ptr<windows::ScriptShell> script) : script_(std::move(script)) {}

    void SendKeys(const std::string& text) override {
        const std::vector<KeyStroke> strokes = InterpretKeystrokes(text);
        if (script_ && LayoutHasAll(strokes)) {
            windows::ReleaseHeldModifiers();
            if (script_->SendKeys(text)) return;
            script_.reset();
        }
        windows::PlayKeys(strokes);
    }

private:
    std::unique_ptr<windows::ScriptShell> script_; // null where the system's own can't be had
};

} // namespace

void WindowsConsole::AppActivate(const std::string& title) {
    const HWND window = windows::FindWindowTitled(title);
    if (window == nullptr || !windows::BringToFront(window))
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

std::unique_ptr<ShellObject> WindowsConsole::CreateObject(const std::string& className) {
    if (CompareNoCase(className, "WScript.Shell") != 0) throw RunTimeError(ErrorNumber::CannotCreateObject);
    return std::make_unique<TypingShell>(windows::ScriptShell::Create());
}

} // namespace mirelle
