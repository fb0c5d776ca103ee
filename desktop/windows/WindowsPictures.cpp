#include "desktop/windows/WindowsPictures.h"

#include "desktop/pictures/ImageFileLoader.h"
#include "desktop/windows/Metafiles.h"

#include <utility>

namespace mirelle {

Picture WindowsPictures::LoadPicture(const std::string& path) {
    if (path.empty()) return Picture();
    const std::vector<std::uint8_t> file = files_.ReadFile(path);
    if (std::optional<Bitmap> drawn = windows::ReadMetafile(file)) return Picture(std::move(*drawn));
    return DecodePicture(file);
}

} // namespace mirelle
