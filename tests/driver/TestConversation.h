// A conversation with the driver inside a test, over files in memory and pictures that the test lays down.
#pragma once

#include "tests/driver/Conversation.h"
#include "tests/driver/Errors.h"
#include "tests/support/TestProgram.h"

#include <map>
#include <string>
#include <string_view>

namespace mirelle::driver {

struct TestConversation {
    test::MemoryFileSystem files;
    test::MemoryFileSystem machine; // what commands name by its own paths
    NamedFiles named{files, machine};
    test::ScriptedLoader loader;
    test::ScriptedEncoders encoders;
    std::map<std::string, Picture> pictures; // what the machine's own paths hold
    Session session{{named, loader, encoders, [this](const std::string& path) { return PictureAt(path); }}};
    Conversation conversation{session};

    // The answer to a command; "" where there is none.
    std::string operator()(std::string_view line) { return conversation.Answer(line).value_or(""); }
    // Of a started program.
    FrmPicX& Form() { return session.MainForm(); }

private:
    Picture PictureAt(const std::string& path) {
        const auto found = pictures.find(path);
        if (found == pictures.end()) throw CommandError("can't read " + path);
        return found->second;
    }
};

} // namespace mirelle::driver
