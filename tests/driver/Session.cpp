#include "tests/driver/Session.h"

#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"

namespace mirelle::driver {
namespace {

constexpr const char* kMainForm = "Form";

} // namespace

void Session::Start() {
    if (sampler_) throw UsageError("the program has started already");
    sampler_.emplace(desktop.PortsOver(host_.files, host_.loader, host_.encoders));
    FrmPicX& form = sampler_->form;
    form.Load();
    form.Visible = true;
    form.Activate();
}

Form* Session::FindForm(const Reference& reference) {
    return reference.name == kMainForm && reference.index < 0 ? &MainForm() : nullptr;
}

FrmPicX& Session::MainForm() {
    if (!sampler_) throw UsageError("there is no form before start");
    return sampler_->form;
}

Control& Session::ControlOf(const Reference& reference) {
    MainForm();
    for (Form* form : Forms()) {
        if (Control* control = form->Find(reference.name, reference.index)) return *control;
    }
    throw UsageError("there is no control " + JsonString(TextOf(reference)));
}

std::vector<Form*> Session::Forms() {
    if (!sampler_) return {};
    return {&sampler_->form};
}

} // namespace mirelle::driver
