// One session of the driver: the program with its stand-ins for the desktop, and the ways to its parts.
#pragma once

#include "app/Sampler.h"
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

    // Makes the form and runs Load, then the first Activate.
    void Start();
    // The form of that name, null where the name is not a form's. Throws UsageError where it is not there
    // yet.
    Form* FindForm(const Reference& reference);
    FrmPicX& MainForm();
    // Throws UsageError where no form has such a control.
    Control& ControlOf(const Reference& reference);
    // Every form that is there.
    std::vector<Form*> Forms();

    NamedFiles& Files() { return host_.files; }
    Picture ReadPicture(const std::string& path) const { return host_.readPicture(path); }

    test::ScriptedDesktop desktop;
    int usageErrors = 0; // so far

private:
    Host host_;
    std::optional<Sampler> sampler_;
};

} // namespace mirelle::driver
