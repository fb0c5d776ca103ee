#include "codecs/modGDIPlus.h"

#include "forms/RunTimeError.h"

#include <algorithm>
#include <array>

namespace mirelle {
namespace {

constexpr std::int32_t kRunning = 1;
constexpr std::size_t kEndingLength = 4;

struct Extension {
    std::string_view ending; // the name's last four characters, in lower case
    std::string_view mimeType;
};
constexpr std::array kExtensions = {
    Extension{".png", "image/png"},  Extension{".gif", "image/gif"},  Extension{".jpg", "image/jpeg"},
    Extension{"jpeg", "image/jpeg"}, Extension{".tif", "image/tiff"}, Extension{"tiff", "image/tiff"},
    Extension{".bmp", "image/bmp"},
};

struct Encoder {
    std::string_view mimeType;
    ImageFormat clsid;
};
constexpr std::array kEncoders = {
    Encoder{"image/bmp", ImageFormat::Bmp}, Encoder{"image/jpeg", ImageFormat::Jpeg},
    Encoder{"image/gif", ImageFormat::Gif}, Encoder{"image/tiff", ImageFormat::Tiff},
    Encoder{"image/png", ImageFormat::Png},
};

char LowerLetter(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// All texts of both tables are in lower case.
bool IsInAnyCase(std::string_view text, std::string_view lowerCase) {
    return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(),
                      [](char given, char lower) { return LowerLetter(given) == lower; });
}

std::optional<std::string_view> MimeTypeOf(std::string_view fileName) {
    if (fileName.size() < kEndingLength) return std::nullopt;
    const std::string_view ending = fileName.substr(fileName.size() - kEndingLength);
    const auto row =
        std::find_if(kExtensions.begin(), kExtensions.end(),
                     [ending](const Extension& extension) { return IsInAnyCase(ending, extension.ending); });
    if (row == kExtensions.end()) return std::nullopt;
    return row->mimeType;
}

} // namespace

std::int32_t StartGDIPlus(ImageEncoders& encoders) {
    return ResumeNext([&] { encoders.Start(); }) ? kRunning : 0;
}

void StopGDIPlus(ImageEncoders& encoders, std::int32_t token) {
    if (token == 0) return;
    ResumeNext([&] { encoders.Stop(); });
}

bool SaveImageGDIPlus(ImageEncoders& encoders, const Picture& picture, const std::string& fileName) {
    const std::optional<std::string_view> mimeType = MimeTypeOf(fileName);
    if (!mimeType || picture.IsEmpty()) return false;
    const std::optional<ImageFormat> clsid = GetEncoderClsid(*mimeType);
    if (!clsid) return false;
    bool isSaved = false;
    ResumeNext([&] { isSaved = encoders.Save(picture, *clsid, fileName); });
    return isSaved;
}

std::optional<ImageFormat> GetEncoderClsid(std::string_view mimeType) {
    const auto row = std::find_if(kEncoders.begin(), kEncoders.end(), [mimeType](const Encoder& encoder) {
        return IsInAnyCase(mimeType, encoder.mimeType);
    });
    if (row == kEncoders.end()) return std::nullopt;
    return row->clsid;
}

} // namespace mirelle
