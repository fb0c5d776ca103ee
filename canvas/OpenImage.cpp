#include "canvas/OpenImage.h"

#include "app/FrmPicX.h"

namespace mirelle {
namespace {

// The last pattern's stray parenthesis keeps the Gif entry from matching any file.
constexpr const char* kFilter =
    "JPG Files (*.jpeg;*.jpg)|*.jpeg;*.jpg|Bmp Files (*.bmp)|*.bmp|Gif Files (*.gif)|*.gif)";
constexpr const char* kExtensions = "*.bmp;*.jpeg;*.jpg;*.tif;*.gif";
constexpr int kPathMustExistAndOverwritePrompt = 2050;

} // namespace

OpenImage::OpenImage(FrmPicX& form) : form_(form) {
    form_.Command23.Click.Connect([this] { OpenFromDialog(); });
    form_.OLEDragDrop.Connect([this](const DroppedData& data) {
        if (!data.files.empty()) OpenDropped(data.files.front());
    });
}

void OpenImage::OpenFromDialog() {
    CommonDialog& dialog = form_.CDialog1;
    dialog.Filter = kFilter;
    dialog.DefaultExt = kExtensions;
    dialog.DialogTitle = "Open to Canvas";
    dialog.Flags = kPathMustExistAndOverwritePrompt;
    dialog.CancelError = true;
    try {
        dialog.ShowOpen();
    } catch (const RunTimeError& error) {
        if (error.Number() == ErrorNumber::DialogCancelled) {
            form_.ports.dialogs.MsgBox("Open cancelled", MessageButtons::Ok, App::Title);
            return;
        }
    }
    OpenFile(dialog.FileName);
}

void OpenImage::OpenDropped(const std::string& file) {
    form_.CDialog1.FileName = file;
    OpenFile(file);
}

void OpenImage::OpenFile(const std::string& file) {
    // One decoding serves both holders; a file that can't be read changes neither of them.
    Picture opened;
    const bool readable = ResumeNext([&] { opened = form_.ports.loader.LoadPicture(file); });
    ResumeNext([&] { form_.picSmall.AutoSize = true; });
    if (readable) ResumeNext([&] { form_.picSmall.Picture = opened; });
    if (form_.Check4.Value == kChecked) {
        ResumeNext([&] { form_.PicImage.AutoSize = true; });
        if (readable) ResumeNext([&] { form_.PicImage.Picture = opened; });
        form_.Picture = form_.PicImage.Picture;
    }
}

} // namespace mirelle
