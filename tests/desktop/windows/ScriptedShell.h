// A stand-in for the system's shell object, had by its class name as the real one is: it notes what it is to
// type and answers as a test wants. The thread that makes it takes part in COM as long as it is there.
#pragma once

#include "desktop/windows/System.h"

#include <memory>
#include <string>
#include <vector>

namespace mirelle::test {

class ScriptedShell {
public:
    ScriptedShell();
    ~ScriptedShell();
    ScriptedShell(const ScriptedShell&) = delete;
    ScriptedShell& operator=(const ScriptedShell&) = delete;

    // What asking for a method by its name gives, and what running it does.
    HRESULT nameResult = S_OK;
    HRESULT runResult = S_OK;
    // What an exception tells of, where that is the result.
    HRESULT exception = S_OK;
    WORD code = 0;
    // One entry for each run: how it was called, as in "SendKeys(text)".
    std::vector<std::string> calls;
    // How many of its objects are in use.
    int inUse = 0;

private:
    class Object;
    class Factory;
    std::unique_ptr<Factory> factory_;
    DWORD registration_ = 0;
};

} // namespace mirelle::test
