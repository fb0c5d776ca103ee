#include "library/FolderScan.h"

#include "app/FrmPicX.h"
#include "forms/Text.h"
#include "library/FileNumber.h"

#include <cstdint>
#include <limits>

namespace mirelle {
namespace {

constexpr int kFirstNumberNotShown = 20000;

} // namespace

void ShowFileCount(FrmPicX& form) {
    form.Label8(46).Caption = CountText(form.File5.ListCount());
}

void NoteFileNumber(FrmPicX& form, const std::string& fileName) {
    ResumeNext([&] { form.ListHigh.AddItem(CStr(NumberOfFileName(fileName))); });
}

void ShowHighestNumber(FrmPicX& form) {
    Integer high = 0;
    for (const std::string& text : form.ListHigh.Rows()) {
        double number = 0;
        ResumeNext([&] { number = Val(text); });
        if (!(number > high)) continue;
        // A number that does not fit leaves the maximum as it was.
        if (RoundHalfEven(number) <= std::numeric_limits<std::int16_t>::max()) high = ToInteger(number);
        if (high < kFirstNumberNotShown && form.ckIncrement.Value == kChecked)
            form.TextLoops.Text = Trim(CStr(high));
    }
}

} // namespace mirelle
