#include "library/FastSave.h"

#include "app/FrmPicX.h"
#include "codecs/BmpWriter.h"
#include "codecs/cJPEG.h"
#include "codecs/modGDIPlus.h"
#include "forms/Text.h"

#include <array>

namespace mirelle {
namespace {

enum class Format { None, Refused, Bitmap, Jpeg, Encoders };

struct PatternRow {
    const char* pattern;
    Format format;
};

constexpr std::array kFormats = {
    PatternRow{"*.psd", Format::Refused},  PatternRow{"*.bmp", Format::Bitmap},
    PatternRow{"*.jpg", Format::Jpeg},     PatternRow{"*.jpeg", Format::Jpeg},
    PatternRow{"*.png", Format::Encoders}, PatternRow{"*.tif", Format::Encoders},
    PatternRow{"*.gif", Format::Encoders},
};

// A pattern that is in no row saves nothing, and is reported as a save all the same.
Format FormatOf(const std::string& pattern) {
    for (const PatternRow& row : kFormats) {
        if (pattern == row.pattern) return row.format;
    }
    return Format::None;
}

constexpr int kLongestNameInLargeType = 18;
constexpr float kLargeType = 10;
constexpr float kSmallType = 8;

constexpr int kBestQuality = 100;

} // namespace

FastSave::FastSave(FrmPicX& form) : form_(form) {
    form_.Command3.Click.Connect([this] { OnSaveClick(); });
}

void FastSave::OnSaveClick() {
    try {
        WithinMemory([this] { Save(); });
    } catch (const RunTimeError& error) {
        form_.ports.dialogs.MsgBox(error.Description() + " " + error.Source(), MessageButtons::Ok,
                                   App::Title);
    }
}

void FastSave::Save() {
    const std::string path = TargetPath();
    if (!MayWrite(path)) return;
    form_.picSmall.Refresh();
    switch (FormatOf(form_.Combo5.Text)) {
    case Format::Refused:
        form_.ports.dialogs.MsgBox("Cannot save .psd format", MessageButtons::Ok, App::Title);
        return;
    case Format::Bitmap:
        SaveBitmap(path);
        break;
    case Format::Jpeg:
        SaveJPG(path);
        break;
    case Format::Encoders:
        SaveThroughEncoders(path);
        break;
    case Format::None:
        break;
    }
    ShowSaved();
}

std::string FastSave::Extension() const {
    return Trim(Replace(form_.Combo5.Text(), "*", ""));
}

// In a root the folder brings a separator of its own.
std::string FastSave::TargetPath() const {
    const std::string separator(1, form_.ports.files.Separator());
    const std::string path =
        form_.File5.Path() + separator + Trim(form_.textProfileName.Text()) + Extension();
    return Replace(path, separator + separator, separator);
}

bool FastSave::MayWrite(const std::string& path) {
    if (!form_.ports.files.FileExists(path)) return true;
    const std::string title = std::string(App::Title) + " Version " + CStr(App::Major) + "." +
                              CStr(App::Minor) + "." + CStr(App::Revision);
    const std::string question = "File exists! Overwrite " + path + "?";
    return form_.ports.dialogs.MsgBox(question, MessageButtons::YesNo, title) == MessageAnswer::Yes;
}

void FastSave::ShowSaved() {
    form_.File5.Refresh();
    form_.Label8(46).Caption = CStr(form_.File5.ListCount()) + " Files"; // also for one
    const std::string shown = form_.textProfileName.Text() + Extension();
    form_.Label2(1).FontSize = Len(shown) > kLongestNameInLargeType ? kSmallType : kLargeType;
    form_.Label2(1).Caption = "Last Save: " + Trim(shown);
}

void FastSave::SaveBitmap(const std::string& path) {
    form_.ports.files.WriteFile(path, BmpFile(form_.picSmall.Image().Pixels()));
}

void FastSave::SaveJPG(const std::string& path) {
    const Picture image = form_.picSmall.Image();
    cJPEG jpeg;
    jpeg.SetSamplingFrequencies(2, 2, 1, 1, 1, 1);
    jpeg.Quality(kBestQuality);
    jpeg.Comment("");
    jpeg.SampleHDC(image.Pixels(), image.Width(), image.Height());
    DeleteWhatIsThere(path);
    jpeg.SaveFileJPG(path, form_.ports.files);
}

// A file that does not go at once, a read-only one say, is made writable first, unless it is hidden: that one
// stays, and keeps the writer from its name.
void FastSave::DeleteWhatIsThere(const std::string& path) {
    FileSystem& files = form_.ports.files;
    ResumeNext([&] { files.DeleteFile(path); });
    if (!files.FileExists(path) || files.IsHidden(path)) return;
    files.MakeWritable(path);
    files.DeleteFile(path);
}

// Whether the save succeeded is not told.
void FastSave::SaveThroughEncoders(const std::string& path) {
    // As after a crop, the Material Image may be painted with no picture assigned.
    const Picture& assigned = form_.picSmall.Picture();
    const Picture image = assigned.IsEmpty() ? form_.picSmall.Image() : assigned;
    const std::int32_t token = StartGDIPlus(form_.ports.encoders);
    SaveImageGDIPlus(form_.ports.encoders, image, path);
    StopGDIPlus(form_.ports.encoders, token);
}

} // namespace mirelle
