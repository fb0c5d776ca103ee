#include "bridge/SuperBatchPanel.h"

#include "app/FrmPicX.h"
#include "forms/Text.h"

#include <array>
#include <span>

namespace mirelle {
namespace {

constexpr std::array kPreviewableTypes = {"*.jpg", "*.jpeg", "*.bmp", "*.gif"};
constexpr std::array kAllTypes = {"*.jpg", "*.jpeg", "*.png", "*.tif", "*.bmp", "*.gif", "*.tga", "*.psd"};

void LoadTypes(ComboBox& list, std::span<const char* const> types) {
    list.Clear();
    for (const char* type : types)
        list.AddItem(type);
    list.Text = "*.jpg";
}

} // namespace

SuperBatchPanel::SuperBatchPanel(FrmPicX& form) : form_(form) {
    form_.Command14.Click.Connect([this] { ToggleFrame(); });
    form_.Command2.Click.Connect([this] { ToggleFileTypes(); });
    form_.Command15.Click.Connect([this] { form_.List2.Clear(); });
    form_.List2.Click.Connect([this] { PreviewRow(); });
    form_.List2.DblClick.Connect([this] { RemoveRow(); });
}

void SuperBatchPanel::ToggleFrame() {
    if (form_.Frame8.Visible) {
        HideFrame();
    } else {
        ShowFrame();
    }
}

void SuperBatchPanel::ShowFrame() {
    form_.Frame8.Visible = true;
    form_.Frame8.Height = 276;
    form_.Frame8.Width = 270;
    form_.Combo5.Clear();
    form_.Command2.Visible = false;
    for (Control* control :
         {static_cast<Control*>(&form_.Command6), static_cast<Control*>(&form_.Command10),
          static_cast<Control*>(&form_.Command13), static_cast<Control*>(&form_.TextMatSize),
          static_cast<Control*>(&form_.ckSize)}) {
        control->Visible = true;
    }
    if (form_.WindowState == kWindowMaximized) {
        form_.Frame8.Move(form_.Frame4.Left, form_.Frame4.Top + 2, 262, 300);
        form_.List2.Width = 3835;
        form_.List2.Left = 50;
    }
    if (form_.Combo5.ListCount() == 0) LoadTypes(form_.Combo5, kAllTypes);
}

void SuperBatchPanel::HideFrame() {
    for (Control* control : {static_cast<Control*>(&form_.Frame8), static_cast<Control*>(&form_.Command13),
                             static_cast<Control*>(&form_.Command10)}) {
        control->Visible = false;
    }
    form_.Command2.Visible = true;
    LoadTypes(form_.Combo5, kPreviewableTypes);
}

void SuperBatchPanel::ToggleFileTypes() {
    const int count = form_.Combo5.ListCount();
    if (count < static_cast<int>(kAllTypes.size())) {
        LoadTypes(form_.Combo5, kAllTypes);
    } else if (count >= static_cast<int>(kPreviewableTypes.size())) {
        LoadTypes(form_.Combo5, kPreviewableTypes);
    }
}

void SuperBatchPanel::PreviewRow() {
    const std::string row = Trim(form_.List2.List(form_.List2.ListIndex()));
    const auto parts = Split(row, std::string(1, form_.ports.files.Separator()));
    form_.Label8(2).Caption = "File: " + (parts.empty() ? std::string() : parts.back());
    // One decoding serves all surfaces; a file that can't be read leaves them as they are.
    Picture loaded;
    if (!ResumeNext([&] { loaded = form_.ports.loader.LoadPicture(row); })) return;
    const bool load = form_.ckLoad.Value == kChecked;
    if (load) ResumeNext([&] { form_.PicImage.Picture = loaded; });
    if (load) ResumeNext([&] { form_.picSmall.Picture = loaded; });
    ResumeNext([&] { form_.Picture = loaded; });
    if (load) ResumeNext([&] { form_.Picture3.Picture = loaded; });
}

void SuperBatchPanel::RemoveRow() {
    ResumeNext([this] { form_.List2.RemoveItem(form_.List2.ListIndex()); });
    form_.Label8(0).Caption = std::to_string(form_.List2.ListCount()) + " Files";
}

} // namespace mirelle
