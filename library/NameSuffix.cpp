#include "library/NameSuffix.h"

#include "app/FrmPicX.h"
#include "forms/Text.h"

namespace mirelle {

std::string SuffixOfNewSample(FrmPicX& form) {
    if (form.ckIncrement.Value == kUnchecked) return "_" + CStr(RoundHalfEven(form.ports.pump.Timer()));
    form.IncrementCounter = form.IncrementCounter + Integer(1);
    form.TextLoops.Text = form.IncrementCounter.Text();
    return "_" + form.IncrementCounter.Text();
}

void TakeSuffix(FrmPicX& form, const std::string& suffix) {
    form.textProfileName.Text = Before(form.textProfileName.Text(), "_") + suffix;
}

} // namespace mirelle
