// Pictures from files, for the whole program.
#pragma once

#include "forms/ports/FileSystem.h"
#include "forms/ports/Pictures.h"

#include <cstdint>
#include <span>
#include <string>

namespace mirelle {

// The picture in the bytes of a BMP, DIB, GIF, JPEG, ICO or CUR file, told by its content: of a GIF file the
// first frame, of an icon the largest picture. What a GIF or an icon leaves clear is white; the fourth byte
// is always 0. Raises 481 where it is none of these or can't be read, 7 where it is too large.
Picture DecodePicture(std::span<const std::uint8_t> file);

// Loads pictures through a file system. Keeps nothing from one to the next.
class ImageFileLoader : public PictureLoader {
public:
    explicit ImageFileLoader(FileSystem& files) : files_(files) {}

    Picture LoadPicture(const std::string& path) override;

private:
    FileSystem& files_;
};

} // namespace mirelle
