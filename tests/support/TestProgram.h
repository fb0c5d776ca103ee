// The program in a test: the real form with all handlers over scripted ports and files in memory.
#pragma once

#include "app/Sampler.h"
#include "forms/RunTimeError.h"
#include "tests/support/MemoryFileSystem.h"
#include "tests/support/ScriptedDesktop.h"

#include <map>
#include <string>

namespace mirelle::test {

// Loads what a test put there, counting how often; a path that is not there raises error 53.
class ScriptedLoader : public PictureLoader {
public:
    Picture LoadPicture(const std::string& path) override {
        if (path.empty()) return Picture();
        ++loads;
        const auto found = pictures.find(path);
        if (found == pictures.end()) throw RunTimeError(ErrorNumber::FileNotFound);
        if (found->second.IsEmpty()) throw RunTimeError(ErrorNumber::InvalidPicture);
        return found->second;
    }
    std::map<std::string, Picture> pictures; // an empty picture stands for a file that is no picture
    int loads = 0;
};

// Keeps what it was given to save.
class ScriptedEncoders : public ImageEncoders {
public:
    struct Saved {
        Picture picture;
        ImageFormat format;
        std::string path;
    };
    void Start() override { ++starts; }
    void Stop() override { ++stops; }
    bool Save(const Picture& picture, ImageFormat format, const std::string& path) override {
        saved.push_back({picture, format, path});
        return succeeds;
    }
    std::vector<Saved> saved;
    int starts = 0, stops = 0;
    bool succeeds = true;
};

struct TestProgram {
    MemoryFileSystem files;
    ScriptedLoader loader;
    ScriptedEncoders encoders;
    ScriptedDesktop desktop;
    Sampler sampler{desktop.PortsOver(files, loader, encoders)};
    FrmPicX& form = sampler.form;

    // Load and the first Activate, as at the program's start.
    void Start() {
        form.Load();
        form.Activate();
    }
};

} // namespace mirelle::test
