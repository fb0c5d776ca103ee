// The program over a real folder, with the real loader and encoders; its clipboard is the test's choice.
#pragma once

#include "codecs/BmpWriter.h"
#include "desktop/encoders/FileEncoders.h"
#include "desktop/files/NativeFileSystem.h"
#include "desktop/pictures/ImageFileLoader.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestPictures.h"
#include "tests/support/TestProgram.h"

#include <string>

namespace mirelle::test {

class DiskProgram {
public:
    explicit DiskProgram(Clipboard* clipboard = nullptr)
        : sampler_({clipboard ? *clipboard : desktop.clipboard, desktop.dialogs, files, loader, encoders,
                    desktop.time, desktop.keyboard, desktop.console, desktop.viewer, desktop.screen,
                    desktop.process}) {
        folder.MakeFolder("Support/Materials/Art");
        folder.MakeFile("Support/Materials/Art/Art_1.bmp", BmpFile(SmoothBitmap(40, 30)));
        form.Load();
        form.Activate();
        form.cmdMatDirs(0).UserClick();
    }
    std::string InArt(const std::string& name) const { return folder / ("Support/Materials/Art/" + name); }
    void ShowPattern(const std::string& pattern) {
        form.Combo5.Text = pattern;
        form.Combo5.Click();
    }
    void Save(const std::string& name, const std::string& pattern) {
        form.textProfileName.Text = name;
        form.Combo5.Text = pattern;
        form.Command3.UserClick();
    }
    // The texts of the messages so far, which are then forgotten.
    std::vector<std::string> TakeMessages() {
        std::vector<std::string> texts;
        for (const ShownMessage& message : desktop.dialogs.messages)
            texts.push_back(message.text);
        desktop.dialogs.messages.clear();
        return texts;
    }

    TemporaryFolder folder;
    NativeFileSystem files{folder.Path(), folder / "komp.txt"};
    ImageFileLoader loader{files};
    FileEncoders encoders{files};
    ScriptedDesktop desktop;

private:
    Sampler sampler_;

public:
    FrmPicX& form = sampler_.form;
};

} // namespace mirelle::test
