// Saves a picture in the format that its file's extension asks for, through the platform's encoders. These
// are made ready for one save and let go again: StartGDIPlus, SaveImageGDIPlus, StopGDIPlus.
//
// A failure of any kind shows in the returned values alone; nothing is raised.
#pragma once

#include "forms/Picture.h"
#include "forms/ports/Pictures.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace mirelle {

// The token of a start, to be given back to StopGDIPlus; 0 where the encoders did not start.
std::int32_t StartGDIPlus(ImageEncoders& encoders);

void StopGDIPlus(ImageEncoders& encoders, std::int32_t token);

// Writes the picture with the encoder's default settings. The last four characters of the name decide, in any
// case: ".png", ".gif", ".jpg", "jpeg", ".tif", "tiff" or ".bmp". False, and no file, for any other name and
// for the empty picture; false where the encoder fails.
bool SaveImageGDIPlus(ImageEncoders& encoders, const Picture& picture, const std::string& fileName);

// The encoder for a mime type, in any case; nothing where there is none.
std::optional<ImageFormat> GetEncoderClsid(std::string_view mimeType);

} // namespace mirelle
