#include "bridge/Keystrokes.h"

#include "forms/RunTimeError.h"
#include "forms/Utf8.h"

#include <algorithm>
#include <array>
#include <string>

namespace mirelle {
namespace {

struct KeyName {
    std::string_view name;
    Key key;
};

constexpr std::array kKeyNames = {
    KeyName{"BACKSPACE", Key::Backspace},
    KeyName{"BKSP", Key::Backspace},
    KeyName{"BREAK", Key::Break},
    KeyName{"BS", Key::Backspace},
    KeyName{"CAPSLOCK", Key::CapsLock},
    KeyName{"DEL", Key::Delete},
    KeyName{"DELETE", Key::Delete},
    KeyName{"DOWN", Key::Down},
    KeyName{"END", Key::End},
    KeyName{"ENTER", Key::Enter},
    KeyName{"ESC", Key::Escape},
    KeyName{"F1", Key::F1},
    KeyName{"F10", Key::F10},
    KeyName{"F11", Key::F11},
    KeyName{"F12", Key::F12},
    KeyName{"F13", Key::F13},
    KeyName{"F14", Key::F14},
    KeyName{"F15", Key::F15},
    KeyName{"F16", Key::F16},
    KeyName{"F2", Key::F2},
    KeyName{"F3", Key::F3},
    KeyName{"F4", Key::F4},
    KeyName{"F5", Key::F5},
    KeyName{"F6", Key::F6},
    KeyName{"F7", Key::F7},
    KeyName{"F8", Key::F8},
    KeyName{"F9", Key::F9},
    KeyName{"HELP", Key::Help},
    KeyName{"HOME", Key::Home},
    KeyName{"INS", Key::Insert},
    KeyName{"INSERT", Key::Insert},
    KeyName{"LEFT", Key::Left},
    KeyName{"NUMLOCK", Key::NumLock},
    KeyName{"PGDN", Key::PageDown},
    KeyName{"PGUP", Key::PageUp},
    KeyName{"PRTSC", Key::PrintScreen},
    KeyName{"RIGHT", Key::Right},
    KeyName{"SCROLLLOCK", Key::ScrollLock},
    KeyName{"TAB", Key::Tab},
    KeyName{"UP", Key::Up},
};

struct ControlCharacter {
    char32_t code;
    Key key;
    Modifiers modifiers;
};

constexpr std::array kControlCharacters = {
    ControlCharacter{8, Key::Backspace, kNoModifiers}, ControlCharacter{9, Key::Tab, kNoModifiers},
    ControlCharacter{10, Key::Enter, kCtrl},           ControlCharacter{13, Key::Enter, kNoModifiers},
    ControlCharacter{27, Key::Escape, kNoModifiers},   ControlCharacter{127, Key::Backspace, kCtrl},
};

[[noreturn]] void RaiseNotWellFormed() {
    throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

constexpr char32_t kReplacement = 0xFFFD;

bool IsControl(char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

bool SameName(std::string_view name, std::u32string_view written) {
    const auto upper = [](char32_t c) { return c >= U'a' && c <= U'z' ? c - (U'a' - U'A') : c; };
    return std::ranges::equal(name, written, [&](char a, char32_t b) { return char32_t(a) == upper(b); });
}

std::u32string Decode(std::string_view text) {
    std::u32string decoded;
    decoded.reserve(text.size());
    while (!text.empty()) {
        const Utf8Character next = FirstCharacter(text);
        decoded += next.IsMalformed() ? kReplacement : next.code;
        text.remove_prefix(next.bytes);
    }
    return decoded;
}

class Interpreter {
public:
    explicit Interpreter(std::u32string text) : text_(std::move(text)) {}

    std::vector<KeyStroke> Run() {
        while (at_ < text_.size())
            Take(text_[at_++]);
        if (groups_.size() > 1) RaiseNotWellFormed();
        return std::move(strokes_);
    }

private:
    void Take(char32_t c) {
        switch (c) {
        case U'+':
            pending_ |= kShift;
            break;
        case U'^':
            pending_ |= kCtrl;
            break;
        case U'%':
            pending_ |= kAlt;
            break;
        case U'~':
            Press(NamedStroke(Key::Enter));
            break;
        case U'(':
            OpenGroup();
            break;
        case U')':
            CloseGroup();
            break;
        case U'{':
            TakeBraces();
            break;
        case U'}':
            RaiseNotWellFormed();
        default:
            Press(StrokeOf(c));
        }
    }

    void OpenGroup() {
        groups_.push_back(groups_.back() | pending_);
        pending_ = kNoModifiers;
    }

    void CloseGroup() {
        if (groups_.size() == 1) RaiseNotWellFormed();
        groups_.pop_back();
        pending_ = kNoModifiers;
        kept_ = kept_ & groups_.back();
    }

    // After "{". The first character belongs to the name even if it is "}" or a blank.
    void TakeBraces() {
        const std::size_t begin = at_;
        std::size_t end = begin + 1;
        while (end < text_.size() && text_[end] != U'}' && text_[end] != U' ')
            ++end;
        if (end >= text_.size()) RaiseNotWellFormed();
        at_ = end;
        const KeyStroke stroke = NamedIn(std::u32string_view(text_).substr(begin, end - begin));
        const int count = text_[at_] == U' ' ? TakeCount() : 1;
        if (at_ >= text_.size() || text_[at_] != U'}') RaiseNotWellFormed();
        ++at_;
        Press(stroke, count);
    }

    static KeyStroke NamedIn(std::u32string_view written) {
        if (written.size() == 1) return StrokeOf(written.front());
        const auto row = std::ranges::find_if(
            kKeyNames, [written](const KeyName& entry) { return SameName(entry.name, written); });
        if (row == kKeyNames.end()) RaiseNotWellFormed();
        return NamedStroke(row->key);
    }

    // The blanks and the decimal digits ahead of "}".
    int TakeCount() {
        while (at_ < text_.size() && text_[at_] == U' ')
            ++at_;
        const std::size_t begin = at_;
        int count = 0;
        while (at_ < text_.size() && text_[at_] >= U'0' && text_[at_] <= U'9') {
            count = count * 10 + int(text_[at_++] - U'0');
            if (count > kMaxKeyCount) RaiseNotWellFormed();
        }
        if (at_ == begin) RaiseNotWellFormed();
        return count;
    }

    static KeyStroke NamedStroke(Key key) { return {.key = key}; }

    static KeyStroke StrokeOf(char32_t c) {
        if (!IsControl(c)) return {.character = c};
        const auto row = std::ranges::find(kControlCharacters, c, &ControlCharacter::code);
        if (row == kControlCharacters.end()) RaiseNotWellFormed();
        return {.key = row->key, .modifiers = row->modifiers};
    }

    // Presses a key so many times under the modifiers that stand for it here. They stay down in between.
    void Press(KeyStroke stroke, int count = 1) {
        if (strokes_.size() + std::size_t(count) > kMaxKeyStrokes) RaiseNotWellFormed();
        stroke.modifiers |= groups_.back() | pending_;
        for (int i = 0; i < count; ++i) {
            stroke.kept = i == 0 ? kept_ : stroke.modifiers;
            strokes_.push_back(stroke);
        }
        if (count > 0) kept_ = groups_.back();
        pending_ = kNoModifiers;
    }

    std::u32string text_;
    std::size_t at_ = 0;
    std::vector<KeyStroke> strokes_;
    // The modifiers of each open group with those of the groups around it; the text itself is the first.
    std::vector<Modifiers> groups_{kNoModifiers};
    // The modifiers written ahead of the next key or group.
    Modifiers pending_ = kNoModifiers;
    // The modifiers that groups have held down ever since the last stroke.
    Modifiers kept_ = kNoModifiers;
};

} // namespace

std::vector<KeyStroke> InterpretKeystrokes(std::string_view text) {
    return Interpreter(Decode(text)).Run();
}

} // namespace mirelle
