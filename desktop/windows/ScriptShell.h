// The system's own shell object: WScript.Shell of the Windows Script Host, reached by its class name. Not
// every machine lets a program have it, and not every one that does has a SendKeys that works.
#pragma once

#include <memory>
#include <string>

struct IDispatch;

namespace mirelle::windows {

class ScriptShell {
public:
    // Nothing where the system has no such class.
    static std::unique_ptr<ScriptShell> Create();
    ~ScriptShell();
    ScriptShell(const ScriptShell&) = delete;
    ScriptShell& operator=(const ScriptShell&) = delete;

    // Types the text, which is well formed. False where this shell object can't, and nothing is typed then.
    // Where it fails otherwise, raises the run-time error that it names, or 440 where it names none.
    bool SendKeys(const std::string& text);

private:
    explicit ScriptShell(IDispatch* object) : object_(object) {}

    IDispatch* object_;
};

} // namespace mirelle::windows
