#include "library/IncrementCounter.h"

#include "app/FrmPicX.h"
#include "forms/Text.h"
#include "library/FolderScan.h"
#include "library/NameSuffix.h"

namespace mirelle {
namespace {

constexpr Color kCountingBack = 0xFF8080;
constexpr Color kCountingText = 0x000000;
constexpr Color kRestingBack = 0x404040;
constexpr Color kRestingText = 0xFFFFFF;
constexpr Color kScanOfferedBack = 0x00FF00;
constexpr Color kScanBarredBack = 0x808080;

// Val of a text; a number beyond all range reads as 0.
double ValOf(const std::string& text) {
    double value = 0;
    ResumeNext([&] { value = Val(text); });
    return value;
}

} // namespace

IncrementCounter::IncrementCounter(FrmPicX& form) : form_(form) {
    form_.TextLoops.Change.Connect([this] { TakeText(); });
    form_.UpDown4.UpClick.Connect([this] { StepUp(); });
    form_.UpDown4.DownClick.Connect([this] { StepDown(); });
    form_.cmdResetfCnt.Click.Connect([this] { Reset(); });
    form_.ckIncrement.Click.Connect([this] { OnIncrementSwitched(); });
    form_.ckGetCount.Click.Connect([this] { ScanFolder(); });
}

// What is in the box becomes the counter. Where there is no name yet, the waiting prefix and the number make
// one.
void IncrementCounter::TakeText() {
    if (form_.TextLoops.Text().empty()) form_.TextLoops.Text = "0";
    if (ValOf(form_.TextLoops.Text) < 0) form_.TextLoops.Text = "0";
    if (form_.ckIncrement.Value == kChecked)
        ResumeNext([this] { form_.IncrementCounter = Val(form_.TextLoops.Text()); });
    if (form_.textProfileName.Text().empty()) {
        form_.textProfileName.Text = form_.MaterialPrefix + Trim(form_.TextLoops.Text());
        form_.MaterialPrefix.clear();
    }
}

void IncrementCounter::StepUp() {
    StepBy(1);
    if (form_.ckIncrement.Value == kChecked) Rename();
}

// The count stops at 0, the renaming does not.
void IncrementCounter::StepDown() {
    if (ValOf(form_.TextLoops.Text) > 0) StepBy(-1);
    if (form_.ckIncrement.Value == kChecked) Rename();
}

void IncrementCounter::StepBy(double step) {
    ResumeNext([&] { form_.TextLoops.Text = Trim(CStr(TextToNumber(form_.TextLoops.Text()) + step)); });
    ResumeNext([this] { form_.IncrementCounter = Val(form_.TextLoops.Text()); });
}

void IncrementCounter::Rename() {
    form_.TextLoops.Text = Trim(form_.IncrementCounter.Text());
    TakeSuffix(form_, "_" + form_.IncrementCounter.Text());
}

void IncrementCounter::Reset() {
    form_.IncrementCounter = Integer(0);
    form_.TextLoops.Text = "0";
}

void IncrementCounter::OnIncrementSwitched() {
    const bool counting = form_.ckIncrement.Value == kChecked;
    form_.TextLoops.BackColor = counting ? kCountingBack : kRestingBack;
    form_.TextLoops.ForeColor = counting ? kCountingText : kRestingText;
    form_.UpDown4.Enabled = counting;
    form_.TextLoops.Enabled = counting;
    form_.cmdResetfCnt.Enabled = counting;
    if (!counting) form_.ckGetCount.Value = kUnchecked;
    form_.ckGetCount.Enabled = counting;
    form_.ckGetCount.BackColor = counting ? kScanOfferedBack : kScanBarredBack;
}

// The numbers go behind those that ListHigh holds already. An empty folder leaves the count as it was.
void IncrementCounter::ScanFolder() {
    if (form_.ckGetCount.Value != kChecked) return;
    if (form_.File5.ListCount() > 0) ShowFileCount(form_);
    for (const std::string& name : form_.File5.Rows())
        NoteFileNumber(form_, name);
    ShowHighestNumber(form_);
}

} // namespace mirelle
