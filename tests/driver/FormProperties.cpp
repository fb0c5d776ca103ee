#include "tests/driver/FormProperties.h"

namespace mirelle::driver {
namespace {

using Row = PropertyRow<Form>;
using OfForm = Rows<Form, Form>;
using OfMain = Rows<FrmPicX, Form>;

// A value that handlers share, a plain member of the form.
template <class T>
Row Shared(std::string name, T FrmPicX::*member) {
    return OfMain::Of(
        std::move(name), [member](FrmPicX& form) -> T { return form.*member; },
        [member](FrmPicX& form, const std::string& word) { form.*member = Read<T>(word); });
}

// A variant that always holds a text.
Row SharedText(std::string name, Variant FrmPicX::*member) {
    return OfMain::Of(
        std::move(name), [member](FrmPicX& form) -> Variant { return form.*member; },
        [member](FrmPicX& form, const std::string& word) { form.*member = word; });
}

std::vector<Row> AllRows() {
    return {
        OfForm::Plain("Caption", &Form::Caption),
        OfForm::Plain("Visible", &Form::Visible),
        OfForm::Plain("Left", &Form::Left),
        OfForm::Plain("Top", &Form::Top),
        OfForm::Plain("Width", &Form::Width),
        OfForm::Plain("Height", &Form::Height),
        OfForm::Plain("BackColor", &Form::BackColor),
        OfForm::Plain("MousePointer", &Form::MousePointer),
        OfForm::Plain("WindowState", &Form::WindowState),
        OfForm::Of(
            "ScaleWidth", [](Form& form) { return form.ScaleWidth(); },
            [](Form& form, const std::string& word) { form.SetScaleWidth(Read<float>(word)); }),
        OfForm::ReadOnly("ScaleHeight", [](Form& form) { return form.ScaleHeight(); }),
        OfForm::ReadOnly("ScaleMode", [](Form& form) { return form.ScaleMode(); }),
        OfMain::Plain("Topmost", &FrmPicX::Topmost),
        Shared("CropStartX", &FrmPicX::CropStartX),
        Shared("CropStartY", &FrmPicX::CropStartY),
        Shared("ClickX", &FrmPicX::ClickX),
        Shared("ClickY", &FrmPicX::ClickY),
        Shared("CropDragging", &FrmPicX::CropDragging),
        Shared("CropCancelled", &FrmPicX::CropCancelled),
        Shared("FirstActivate", &FrmPicX::FirstActivate),
        Shared("ClipboardIsSource", &FrmPicX::ClipboardIsSource),
        SharedText("CurrentImagePath", &FrmPicX::CurrentImagePath),
        Shared("IncrementCounter", &FrmPicX::IncrementCounter),
        Shared("MaterialPrefix", &FrmPicX::MaterialPrefix),
        Shared("SampledColorValue", &FrmPicX::SampledColorValue),
        Shared("PanelDropX", &FrmPicX::PanelDropX),
        Shared("PanelDropY", &FrmPicX::PanelDropY),
        Shared("GradDirectionH", &FrmPicX::GradDirectionH),
        Shared("GradDirectionV", &FrmPicX::GradDirectionV),
        Shared("RStart", &FrmPicX::RStart),
        Shared("GStart", &FrmPicX::GStart),
        Shared("BStart", &FrmPicX::BStart),
        Shared("RFinish", &FrmPicX::RFinish),
        Shared("GFinish", &FrmPicX::GFinish),
        Shared("BFinish", &FrmPicX::BFinish),
    };
}

} // namespace

const std::vector<PropertyRow<Form>>& FormProperties() {
    static const std::vector<Row> kRows = AllRows();
    return kRows;
}

} // namespace mirelle::driver
