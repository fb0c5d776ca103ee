#include "desktop/files/WindowsPath.h"

#include <algorithm>

namespace mirelle {
namespace {

constexpr std::string_view kForbidden = "<>:\"|?*";

bool IsSeparator(char character) {
    return character == '\\' || character == '/';
}

bool IsLetter(char character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

bool IsForbidden(char character) {
    return static_cast<unsigned char>(character) < ' ' ||
           kForbidden.find(character) != std::string_view::npos;
}

std::vector<std::string_view> Segments(std::string_view text) {
    std::vector<std::string_view> segments;
    while (!text.empty()) {
        const auto end =
            static_cast<std::size_t>(std::find_if(text.begin(), text.end(), IsSeparator) - text.begin());
        if (end > 0) segments.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return segments;
}

std::string_view WithoutEnd(std::string_view name, bool isLast) {
    if (isLast) {
        while (!name.empty() && (name.back() == ' ' || name.back() == '.'))
            name.remove_suffix(1);
    } else if (name.ends_with('.') && !name.ends_with("..")) {
        name.remove_suffix(1);
    }
    return name;
}

} // namespace

WindowsPath ParseWindowsPath(std::string_view text, const WindowsPath& current) {
    WindowsPath path;
    path.drive = current.drive;
    if (text.empty()) {
        path.kind = WindowsPathKind::NotAName;
        return path;
    }
    if (text.size() >= 2 && IsSeparator(text[0]) && IsSeparator(text[1])) {
        path.kind = WindowsPathKind::Network;
        return path;
    }

    if (text.size() >= 2 && IsLetter(text[0]) && text[1] == ':') {
        path.drive = text[0];
        text.remove_prefix(2);
    } else if (!IsSeparator(text[0])) {
        path.names = current.names;
    }

    path.endsInSeparator = !text.empty() && IsSeparator(text.back());
    const std::vector<std::string_view> segments = Segments(text);
    for (std::size_t i = 0; i < segments.size(); ++i) {
        if (segments[i] == ".") continue;
        if (segments[i] == "..") {
            if (!path.names.empty()) path.names.pop_back();
            continue;
        }
        if (std::any_of(segments[i].begin(), segments[i].end(), IsForbidden))
            path.kind = WindowsPathKind::NotAName;
        const bool isLast = i + 1 == segments.size() && !path.endsInSeparator;
        const std::string_view name = WithoutEnd(segments[i], isLast);
        if (!name.empty()) path.names.emplace_back(name);
    }
    return path;
}

std::string TextOf(const WindowsPath& path) {
    std::string text = {path.drive, ':'};
    for (const std::string& name : path.names)
        text += '\\' + name;
    if (path.names.empty()) text += '\\';
    return text;
}

bool IsWindowsName(std::string_view name) {
    const auto isUnfit = [](char character) { return IsForbidden(character) || IsSeparator(character); };
    return !name.empty() && name.back() != ' ' && name.back() != '.' &&
           std::none_of(name.begin(), name.end(), isUnfit);
}

} // namespace mirelle
