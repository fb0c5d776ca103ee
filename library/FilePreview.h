// The File5 click, the hub of the library: it records the selected file as CurrentImagePath, names the
// material after it, and loads it into every holder that the modes allow. Batch sends, refresh and revert run
// it by selecting rows.
//
//     mode                                     name   Imagex  picSmall  PicImage, Pic1,       gradient's
//                                                                       Picture1, Picture4    pictures
//     ckNoOpen                                 stem
//     gradient panel shown, ckGradPic(0) on                             Picture4 alone        reloaded
//     none of them                             stem   loaded  loaded    loaded                reloaded
//     ckKeep                                   stem   loaded            loaded                reloaded
//     ckOnly                                   stem   loaded  loaded
//     ckKeep and ckOnly                        stem   loaded
//
// The file is decoded once, whatever the number of holders. Every step runs, also behind one that failed: a
// file that can't be loaded leaves the holders as they were, and its name and path count all the same.
#pragma once

#include <string>

namespace mirelle {

class FrmPicX;
class LoadingOnce;

class FilePreview {
public:
    explicit FilePreview(FrmPicX& form);

private:
    void OnFileClick();

    void RecordPath();
    void AddToSuperBatch();
    void NameMaterialAfter(const std::string& stem);
    void TakeNumberFrom(const std::string& stem);

    bool GradientTakesFile() const;
    void LoadForGradient(LoadingOnce& file);

    void ShowPath();
    void ShowPreview(LoadingOnce& file);
    void LoadMaterialImage(LoadingOnce& file);
    void LoadCanvas(LoadingOnce& file);
    void SizeGradientBoxes();
    void RunGradient();
    void RunGradientInLastDirection();
    void TakeFormAsCanvas();
    void ShowThumbnail();
    void StretchSmallPreview();
    void ShowCanvas();

    FrmPicX& form_;
};

} // namespace mirelle
