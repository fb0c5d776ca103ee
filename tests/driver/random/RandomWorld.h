// A session of the driver over real files in a folder, for events in any order.
#pragma once

#include "desktop/encoders/FileEncoders.h"
#include "desktop/files/NativeFileSystem.h"
#include "desktop/files/RootedWindowsFileSystem.h"
#include "desktop/pictures/ImageFileLoader.h"
#include "tests/driver/Conversation.h"
#include "tests/driver/random/FolderSnapshot.h"
#include "tests/driver/random/WatchedFiles.h"
#include "tests/driver/RandomUser.h"

#include <map>
#include <optional>
#include <string>

namespace mirelle::driver {

class RandomWorld {
public:
    // Lays pictures, files that are none, and folders down in an empty folder of this machine, and starts the
    // program.
    explicit RandomWorld(const std::string& folder);

    RandomUser::Reach Reach() const;
    FrmPicX& Form() { return session_.MainForm(); }
    // Does an event. What went wrong, nothing where all is well.
    std::optional<std::string> Do(const std::string& event);
    // The first file on the disks that has changed in a folder that the program has not been in.
    std::optional<std::string> StrayFile() const;
    // Forgets what was recorded for a script to ask for.
    void Forget();

private:
    std::map<std::string, Picture> pictures_; // for the clipboard
    RootedWindowsFileSystem disk_;
    WatchedFiles files_;
    NativeFileSystem machine_;
    NamedFiles named_;
    ImageFileLoader loader_;
    FileEncoders encoders_;
    Session session_;
    Conversation conversation_;
    std::string folder_;
    std::optional<FolderSnapshot> atFirst_;
};

} // namespace mirelle::driver
