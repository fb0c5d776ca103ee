// The encoders of picture files, for the whole program: PNG, GIF, JPEG, TIFF and BMP.
#pragma once

#include "forms/ports/FileSystem.h"
#include "forms/ports/Pictures.h"

#include <cstdint>
#include <string>
#include <vector>

namespace mirelle {

// The bytes of the picture's file: PNG, TIFF, JPEG and BMP of 24 bits a pixel, GIF of 256 colours at most.
// Raises 481 for the empty picture and where the format can't hold it, 6 or 7 where it is too large.
std::vector<std::uint8_t> EncodePicture(const Picture& picture, ImageFormat format);

// Writes such files through a file system, each whole or not at all.
class FileEncoders : public ImageEncoders {
public:
    explicit FileEncoders(FileSystem& files) : files_(files) {}

    // These encoders are always ready.
    void Start() override {}
    void Stop() override {}
    bool Save(const Picture& picture, ImageFormat format, const std::string& path) override;

private:
    FileSystem& files_;
};

} // namespace mirelle
