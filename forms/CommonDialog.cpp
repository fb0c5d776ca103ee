#include "forms/CommonDialog.h"

#include "forms/RunTimeError.h"

namespace mirelle {

void CommonDialog::ShowOpen() {
    const auto chosen = dialogs_.ShowOpen({Filter, DialogTitle, Flags});
    if (!chosen) return Cancelled();
    FileName = *chosen;
}

void CommonDialog::ShowColor() {
    const auto chosen = dialogs_.ShowColor(Color);
    if (!chosen) return Cancelled();
    Color = *chosen;
}

void CommonDialog::Cancelled() const {
    if (CancelError) throw RunTimeError(ErrorNumber::DialogCancelled);
}

} // namespace mirelle
