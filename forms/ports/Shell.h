// Ports: the console window and the shell object that types into it, and the system's viewer for documents.
#pragma once

#include <memory>
#include <string>

namespace mirelle {

// The shell object that CreateObject("WScript.Shell") gives.
class ShellObject {
public:
    virtual ~ShellObject() = default;

    // Types the text, written in the keystroke language, into the window that has the focus. Returns when all
    // of it is typed. Raises error 5 where the text is not well formed.
    virtual void SendKeys(const std::string& text) = 0;
};

class ConsoleShell {
public:
    virtual ~ConsoleShell() = default;

    // Brings the window of that title to the front and gives it the focus. Raises error 5 where there is
    // none, and where the system leaves another one in front.
    virtual void AppActivate(const std::string& title) = 0;
    // Raises error 429 for a class that is not known.
    virtual std::unique_ptr<ShellObject> CreateObject(const std::string& className) = 0;
};

class SystemViewer {
public:
    virtual ~SystemViewer() = default;

    // Opens a document or an address with the program that the system has for it. Failures are not told.
    virtual void Open(const std::string& target, const std::string& workingFolder, int showMode) = 0;
};

} // namespace mirelle
