#include "library/MaterialNames.h"

#include "app/FrmPicX.h"
#include "library/PrefixTable.h"

namespace mirelle {
namespace {

constexpr const char* kPrefixFile = "Support/Settings/MaterialsSamplerPrefix.txt";
constexpr int kLastLineIndex = 10000; // counted from 0

} // namespace

MaterialNames::MaterialNames(FrmPicX& form) : form_(form) {
    form_.textProfileName.Click.Connect([this] { JumpToPrefix(); });
    form_.cmdOpen2Combo.Click.Connect([this] { LoadPrefixList(); });
}

// The prefix is armed first: the change of folder may use it up.
void MaterialNames::JumpToPrefix() {
    for (const PrefixRow& row : kPrefixes) {
        if (form_.textProfileName.Text() != row.prefix) continue;
        form_.MaterialPrefix = row.prefix;
        ResumeNext([&] { form_.Dir5.SetPath(form_.AppPath(row.folder)); });
    }
}

// Adds the file's lines to the list; what an earlier reading added stays.
void MaterialNames::LoadPrefixList() {
    if (!file1_) ResumeNext([this] { OpenPrefixFile(); });
    if (!file1_) return;
    for (int index = 0; index <= kLastLineIndex; ++index) {
        if (file1_->AtEnd()) {
            file1_.reset();
            return;
        }
        form_.textProfileName.AddItem(file1_->ReadLine());
    }
}

void MaterialNames::OpenPrefixFile() {
    file1_.emplace(form_.ports.files.ReadFile(form_.AppPath(kPrefixFile)));
}

} // namespace mirelle
