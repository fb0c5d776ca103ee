// Pictures from files, on Windows: all that the program reads everywhere, and metafiles.
#pragma once

#include "forms/ports/FileSystem.h"
#include "forms/ports/Pictures.h"

namespace mirelle {

class WindowsPictures : public PictureLoader {
public:
    explicit WindowsPictures(FileSystem& files) : files_(files) {}

    Picture LoadPicture(const std::string& path) override;

private:
    FileSystem& files_;
};

} // namespace mirelle
