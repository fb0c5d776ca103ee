// Port: message boxes and the dialogs that ask for a file, a colour or a text. All are modal.
#pragma once

#include "forms/Picture.h"

#include <optional>
#include <string>

namespace mirelle {

enum class MessageButtons { Ok, YesNo };
enum class MessageAnswer { Ok, Yes, No };

// What an open dialog shows. The filter is a list of name, "|", patterns parted by ";", "|", ...
struct OpenRequest {
    std::string filter;
    std::string title;
    int flags = 0;
};

class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual MessageAnswer MsgBox(const std::string& text, MessageButtons buttons,
                                 const std::string& title) = 0;
    // The text typed; the empty text where the dialog was cancelled.
    virtual std::string InputBox(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) = 0;
    // The chosen file's path; nothing where the dialog was cancelled.
    virtual std::optional<std::string> ShowOpen(const OpenRequest& request) = 0;
    // The chosen colour; nothing where the dialog was cancelled.
    virtual std::optional<Color> ShowColor(Color current) = 0;
};

} // namespace mirelle
