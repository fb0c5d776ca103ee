// A system on which no window can be brought to the front and typed into: every look for the console finds
// none.
#pragma once

#include "forms/ports/Shell.h"
#include "forms/RunTimeError.h"

namespace mirelle {

class NoConsole : public ConsoleShell {
public:
    void AppActivate(const std::string&) override { throw RunTimeError(ErrorNumber::InvalidProcedureCall); }
    std::unique_ptr<ShellObject> CreateObject(const std::string&) override {
        throw RunTimeError(ErrorNumber::CannotCreateObject);
    }
};

} // namespace mirelle
