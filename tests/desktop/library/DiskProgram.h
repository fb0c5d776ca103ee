// The program over a library on a real disk, with the real loader and encoders. It starts in the folder Art,
// with a Material Image to save.
#pragma once

#include "desktop/encoders/FileEncoders.h"
#include "desktop/files/NativeFileSystem.h"
#include "desktop/pictures/ImageFileLoader.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestPictures.h"
#include "tests/support/TestProgram.h"

#include <filesystem>
#include <string>
#include <vector>

namespace mirelle::test {

class DiskProgram {
public:
    DiskProgram() {
        folder.MakeFolder("Support/Materials/Art");
        form.Load();
        form.Activate();
        form.cmdMatDirs(0).UserClick();
        form.picSmall.Picture = sample;
    }
    std::string InArt(const std::string& name) const { return folder / ("Support/Materials/Art/" + name); }
    void Save(const std::string& name, const std::string& pattern) {
        form.textProfileName.Text = name;
        form.Combo5.Text = pattern;
        form.Command3.UserClick();
    }
    void ShowPattern(const std::string& pattern) {
        form.Combo5.Text = pattern;
        form.Dir5.Click();
    }
    std::vector<std::string> EverythingInArt() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(InArt("")))
            names.push_back(entry.path().filename().string());
        return names;
    }

    TemporaryFolder folder;
    NativeFileSystem files{folder.Path(), folder / "komp.txt"};
    ImageFileLoader loader{files};
    FileEncoders encoders{files};
    ScriptedDesktop desktop;
    Sampler sampler{desktop.PortsOver(files, loader, encoders)};
    FrmPicX& form = sampler.form;
    Picture sample{SmoothBitmap(64, 48)};
};

} // namespace mirelle::test
