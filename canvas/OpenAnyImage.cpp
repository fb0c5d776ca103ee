#include "canvas/OpenAnyImage.h"

#include "app/FrmPicX.h"
#include "codecs/clsTiff.h"
#include "forms/LetterCase.h"
#include "forms/Text.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace mirelle {
namespace {

constexpr const char* kFilter =
    "*.tif *.png *.bmp *.pcx *.tga *.dib *.gif *.jpg *.wmf *.emf *.ico *.cur|*.tif; *.png; *.bmp; *.pcx; "
    "*.tga; *.dib; *.gif; *.jpg; *.wmf; *.emf; *.ico; *.cur";

using Opener = void (*)(FrmPicX& form, const std::string& fileName);

void ByLoader(FrmPicX& form, const std::string& fileName) {
    form.picSmall.Picture = form.ports.loader.LoadPicture(fileName);
}

void ByTiffReader(FrmPicX& form, const std::string& fileName) {
    clsTiff(form.picSmall, form.ports.files).LoadTIFF(fileName);
}

// The object that LoadTGA, DrawTGA, PicBox and OpenPNG belong to was never assigned.
void ByMissingObject(FrmPicX&, const std::string&) {
    throw RunTimeError(ErrorNumber::ObjectNotSet);
}

void ClearedByMissingObject(FrmPicX& form, const std::string& fileName) {
    form.picSmall.Picture = Picture();
    ByMissingObject(form, fileName);
}

struct ExtensionRow {
    std::string_view extension;
    Opener open;
};

constexpr std::array kExtensions = {
    ExtensionRow{"BMP", ByLoader},        ExtensionRow{"DIB", ByLoader},
    ExtensionRow{"GIF", ByLoader},        ExtensionRow{"JPG", ByLoader},
    ExtensionRow{"WMF", ByLoader},        ExtensionRow{"EMF", ByLoader},
    ExtensionRow{"ICO", ByLoader},        ExtensionRow{"CUR", ByLoader},
    ExtensionRow{"TIF", ByTiffReader},    ExtensionRow{"PCX", ClearedByMissingObject},
    ExtensionRow{"TGA", ByMissingObject}, ExtensionRow{"PNG", ByMissingObject},
};

} // namespace

void OpenAnyImage(FrmPicX& form) {
    form.CDialog1.Filter = kFilter;
    form.CDialog1.ShowOpen();
    OpenFileByExtension(form, form.CDialog1.FileName);
}

void OpenFileByExtension(FrmPicX& form, const std::string& fileName) {
    const std::string extension = UpperCase(Right(fileName, 3));
    const auto row = std::ranges::find(kExtensions, extension, &ExtensionRow::extension);
    if (row != kExtensions.end()) row->open(form, fileName);
}

} // namespace mirelle
