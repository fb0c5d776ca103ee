// One session of the driver: the program with its stand-ins for the desktop, and the ways to its parts.
#pragma once

#include "app/Sampler.h"
#include "app/Splash.h"
#include "tests/driver/NamedFiles.h"
#include "tests/driver/References.h"
#include "tests/support/ScriptedDesktop.h"

#include <functional>
#include <optional>
#include <string>

namespace mirelle::driver {

// What a session is not the owner of: files, and whatever reads and writes pictures.
struct Host {
    NamedFiles& files;
    PictureLoader& loader; // both over those files
    ImageEncoders& encoders;
    // Reads a picture for arranging a test, from a path of this machine. Throws CommandError.
    std::function<Picture(const std::string& path)> readPicture;
};

class Session {
public:
    explicit Session(Host host) : host_(std::move(host)) {}

    // Makes the program and shows the main form: Load, then the first Activate.
    void Start();
    // Makes the program and shows the splash, which shows the main form in its time.
    void ShowSplash();
    // The form of that name, null where the name is not a form's. Throws UsageError where it is not there
    // yet.
    Form* FindForm(const Reference& reference);
    FrmPicX& MainForm();
    // Throws UsageError where no form has such a control.
    Control& ControlOf(const Reference& reference);
    // Every form that has been loaded.
    std::vector<Form*> Forms();

    NamedFiles& Files() { return host_.files; }
    Picture ReadPicture(const std::string& path) const { return host_.readPicture(path); }

    test::ScriptedDesktop desktop;
    int usageErrors = 0; // so far

private:
    void MakeProgram();
    void ShowMainForm();

    Host host_;
    std::optional<Splash> splash_; // where the start shows it
    std::optional<Sampler> sampler_;
    bool mainFormShown_ = false;
};

} // namespace mirelle::driver
