#include "desktop/pictures/PictureFileIO.h"

#include "codecs/BmpReader.h"
#include "desktop/files/HostFiles.h"
#include "desktop/pictures/QtImages.h"

namespace mirelle {

Picture ReadTestPicture(const std::string& path) {
    const std::vector<std::uint8_t> file = host::ReadWholeFile(path);
    if (!file.empty() && file.front() == 'B') return Picture(ReadBmp(file, DibAlpha::Kept));
    return Picture(BitmapWithAlpha(ReadImage(file, "png")));
}

} // namespace mirelle
