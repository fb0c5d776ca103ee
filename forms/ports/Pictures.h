// Ports: reading pictures from files, and writing them in the formats that the platform's encoders know.
#pragma once

#include "forms/Picture.h"

#include <string>

namespace mirelle {

class PictureLoader {
public:
    virtual ~PictureLoader() = default;

    // LoadPicture: BMP, DIB, GIF (first frame), JPEG, ICO and CUR, told by content, and WMF and EMF where the
    // system can. The empty path gives the empty picture. Raises 53, 75 or 76 where the file can't be read,
    // 481 where it is no such picture, 7 where it is too large.
    virtual Picture LoadPicture(const std::string& path) = 0;
};

enum class ImageFormat { Png, Gif, Jpeg, Tiff, Bmp };

class ImageEncoders {
public:
    virtual ~ImageEncoders() = default;

    // Makes the encoders ready, and lets them go again: called around each save.
    virtual void Start() = 0;
    virtual void Stop() = 0;
    // Writes the picture in the format's default settings. False where it can't; then nothing new is left
    // behind.
    virtual bool Save(const Picture& picture, ImageFormat format, const std::string& path) = 0;
};

} // namespace mirelle
