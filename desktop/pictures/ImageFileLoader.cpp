#include "desktop/pictures/ImageFileLoader.h"

#include "codecs/BmpReader.h"
#include "codecs/IconReader.h"
#include "desktop/pictures/JpegReader.h"
#include "desktop/pictures/QtImages.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace mirelle {
namespace {

using Bytes = std::span<const std::uint8_t>;
using namespace std::string_view_literals;

Bitmap ReadGif(Bytes file) {
    return OpaqueBitmap(ReadImage(file, "gif"));
}

Bitmap ReadIconFile(Bytes file) {
    return ReadIcon(file, [](Bytes png) { return OpaqueBitmap(ReadImage(png, "png")); });
}

struct Kind {
    std::string_view beginning;
    Bitmap (*read)(Bytes file);
};

constexpr std::array kKinds = {
    Kind{"\xFF\xD8\xFF"sv, ReadJpeg},
    Kind{"BM"sv, [](Bytes file) { return ReadBmp(file); }},
    Kind{"GIF87a"sv, ReadGif},
    Kind{"GIF89a"sv, ReadGif},
    Kind{"\0\0\1\0"sv, ReadIconFile},
    Kind{"\0\0\2\0"sv, ReadIconFile},
    Kind{"\x0C\0\0\0"sv,
         [](Bytes file) { return ReadDib(file); }}, // a bare bitmap begins with its header's size
    Kind{"\x28\0\0\0"sv, [](Bytes file) { return ReadDib(file); }},
    Kind{"\x6C\0\0\0"sv, [](Bytes file) { return ReadDib(file); }},
    Kind{"\x7C\0\0\0"sv, [](Bytes file) { return ReadDib(file); }},
};

} // namespace

Picture DecodePicture(Bytes file) {
    const std::string_view text(reinterpret_cast<const char*>(file.data()), file.size());
    const auto kind = std::find_if(kKinds.begin(), kKinds.end(),
                                   [text](const Kind& each) { return text.starts_with(each.beginning); });
    if (kind == kKinds.end()) throw RunTimeError(ErrorNumber::InvalidPicture);
    return Picture(kind->read(file));
}

Picture ImageFileLoader::LoadPicture(const std::string& path) {
    if (path.empty()) return Picture();
    return DecodePicture(files_.ReadFile(path));
}

} // namespace mirelle
