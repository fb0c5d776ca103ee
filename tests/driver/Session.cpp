#include "tests/driver/Session.h"

#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"

namespace mirelle::driver {
namespace {

constexpr const char* kMainForm = "Form";

} // namespace

void Session::Start() {
    MakeProgram();
    ShowMainForm();
}

void Session::ShowSplash() {
    MakeProgram();
    splash_.emplace(desktop.screen, desktop.time, desktop.process);
    splash_->Finished.Connect([this] { ShowMainForm(); });
    splash_->Load();
}

void Session::MakeProgram() {
    if (sampler_) throw UsageError("the program has started already");
    sampler_.emplace(desktop.PortsOver(host_.files, host_.loader, host_.encoders));
}

void Session::ShowMainForm() {
    mainFormShown_ = true;
    FrmPicX& form = sampler_->form;
    form.Load();
    form.Visible = true;
    form.Activate();
}

Form* Session::FindForm(const Reference& reference) {
    if (reference.index >= 0) return nullptr;
    if (reference.name == kMainForm) return &MainForm();
    for (Form* form : Forms()) {
        if (form != &sampler_->form && form->Name() == reference.name) return form;
    }
    return nullptr;
}

FrmPicX& Session::MainForm() {
    if (!mainFormShown_) throw UsageError("there is no main form before the start");
    return sampler_->form;
}

Control& Session::ControlOf(const Reference& reference) {
    for (Form* form : Forms()) {
        if (Control* control = form->Find(reference.name, reference.index)) return *control;
    }
    throw UsageError("there is no control " + JsonString(TextOf(reference)));
}

std::vector<Form*> Session::Forms() {
    std::vector<Form*> forms;
    if (mainFormShown_) forms = {&sampler_->form, &sampler_->manual};
    if (splash_) forms.push_back(&*splash_);
    return forms;
}

} // namespace mirelle::driver
