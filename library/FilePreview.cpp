#include "library/FilePreview.h"

#include "app/FrmPicX.h"
#include "canvas/FitThumbnail.h"
#include "forms/Text.h"
#include "fx/SizeFXBits.h"
#include "library/LoadingOnce.h"

namespace mirelle {
namespace {

constexpr float kPreviewWidth = 3135;
constexpr float kPreviewHeight = 1575;
// A picture's own unit is a hundredth of a millimetre, at 96 pixels to the inch.
constexpr double kOwnUnitsPerPixel = 2540.0 / 96.0;

} // namespace

FilePreview::FilePreview(FrmPicX& form) : form_(form) {
    form_.File5.Click.Connect([this] { OnFileClick(); });
}

void FilePreview::OnFileClick() {
    const std::string stem = Before(form_.File5.FileName(), ".");
    RecordPath();
    AddToSuperBatch();
    if (form_.ckNoOpen.Value == kChecked) {
        NameMaterialAfter(stem);
        return;
    }
    LoadingOnce file(form_.ports.loader, form_.CurrentImagePath.Text());
    if (GradientTakesFile()) {
        LoadForGradient(file);
        return;
    }
    form_.ClipboardIsSource = false;
    NameMaterialAfter(stem);
    ShowPath();
    form_.File5.SetPattern(form_.Combo5.Text);
    TakeNumberFrom(stem);
    ShowPreview(file);
    if (form_.ckKeep.Value == kUnchecked) LoadMaterialImage(file);
    if (form_.ckOnly.Value == kUnchecked) LoadCanvas(file);
    if (form_.FrameGradFX.Visible) RunGradient();
    ResumeNext([this] { SizeFXBits(form_); });
    if (form_.ckUseFormCanvas.Value == kChecked) TakeFormAsCanvas();
    ShowThumbnail();
    StretchSmallPreview();
    if (form_.ckGradPic(0).Value == kUnchecked) ShowCanvas();
}

// In a root the folder brings a separator of its own.
void FilePreview::RecordPath() {
    const std::string separator(1, form_.ports.files.Separator());
    const std::string path = form_.File5.Path() + separator + form_.File5.FileName();
    form_.CurrentImagePath = Replace(path, separator + separator, separator);
}

// Single adding: selecting an equal row in the list of the SuperBatch tells whether the file is there.
void FilePreview::AddToSuperBatch() {
    if (!form_.Frame8.Visible || form_.ckSingleFile.Value != kChecked) return;
    const std::string row = form_.File5.Path() + form_.ports.files.Separator() + form_.File5.FileName();
    ResumeNext([&] { form_.List2.SetText(row); });
    if (form_.List2.ListIndex() == kNoRow) form_.List2.AddItem(row);
}

void FilePreview::NameMaterialAfter(const std::string& stem) {
    form_.textProfileName.Text = stem;
}

void FilePreview::TakeNumberFrom(const std::string& stem) {
    if (form_.ckGetCount.Value != kChecked || form_.ckIncrement.Value != kChecked) return;
    if (!Contains(stem, "_")) return;
    const std::string number = Split(stem, "_").back();
    if (IsNumeric(number)) form_.TextLoops.Text = Trim(number);
}

bool FilePreview::GradientTakesFile() const {
    return form_.FrameGradFX.Visible && form_.ckGradPic(0).Value == kChecked;
}

void FilePreview::LoadForGradient(LoadingOnce& file) {
    file.Into(form_.Picture4);
    form_.Picture4.Refresh();
    SizeGradientBoxes();
    RunGradientInLastDirection();
    // There and back: the box stays checked, and its handler loads the file and draws the gradient anew.
    ResumeNext([this] { form_.ckGradPic(0).UserClick(); });
    ResumeNext([this] { form_.ckGradPic(0).UserClick(); });
}

void FilePreview::ShowPath() {
    form_.lblPubPath.Caption = Trim(form_.CurrentImagePath.Text());
}

void FilePreview::ShowPreview(LoadingOnce& file) {
    form_.Imagex.Height = kPreviewHeight;
    form_.Imagex.Width = kPreviewWidth;
    file.Into(form_.Imagex);
}

void FilePreview::LoadMaterialImage(LoadingOnce& file) {
    ResumeNext([this] { form_.picSmall.AutoSize = true; });
    file.Into(form_.picSmall);
}

// The form still shows the picture before this one here; ShowCanvas brings the new one.
void FilePreview::LoadCanvas(LoadingOnce& file) {
    form_.Picture = form_.PicImage.Picture;
    for (PictureBox* holder : {&form_.PicImage, &form_.Pic1, &form_.Picture1, &form_.Picture4}) {
        file.Into(*holder);
        holder->Refresh();
    }
    SizeGradientBoxes();
    file.Into(form_.pic1grad);
}

// Picture4 measures in pixels, the gradient's boxes are placed in twips.
void FilePreview::SizeGradientBoxes() {
    for (PictureBox* box : {&form_.pic1grad, &form_.pic2grad, &form_.picDest}) {
        box->SizeInPixels(form_.Picture4.PixelWidth(), form_.Picture4.PixelHeight());
    }
}

void FilePreview::RunGradient() {
    ResumeNext([this] { form_.cmdGradV(1).Click(); });
    RunGradientInLastDirection();
}

void FilePreview::RunGradientInLastDirection() {
    if (form_.GradDirectionV) ResumeNext([this] { form_.cmdGradV(1).Click(); });
    if (form_.GradDirectionH) ResumeNext([this] { form_.cmdGradV(0).Click(); });
}

void FilePreview::TakeFormAsCanvas() {
    ResumeNext([this] { form_.PicImage.Picture = form_.Image(); });
    ResumeNext([this] { form_.Picture3.Picture = form_.Image(); });
}

void FilePreview::ShowThumbnail() {
    FitThumbnail(form_, form_.picSmall.Width * 0.9F, form_.picSmall.Height * 0.9F);
    ResumeNext([this] { form_.Image1.Picture = form_.picSmall.Image(); });
    form_.Image1.Refresh();
}

void FilePreview::StretchSmallPreview() {
    const double pictureHeight = form_.Imagex.Picture().Height() * kOwnUnitsPerPixel;
    if (double{form_.Imagex.Height} > RoundHalfEven(pictureHeight)) form_.Imagex.Stretch = true;
}

// Selecting the row from inside its own click runs no second one; where the pattern changed and nothing is
// selected any more, it fails and is passed over.
void FilePreview::ShowCanvas() {
    ResumeNext([this] { form_.File5.Selected(form_.File5.ListIndex()) = true; });
    form_.Picture = form_.PicImage.Picture;
    form_.Refresh();
}

} // namespace mirelle
