#include "desktop/window/BatchNote.h"

#include "app/FrmPicX.h"
#include "desktop/look/Typeface.h"
#include "forms/Text.h"

#include <QPointer>

namespace mirelle {
namespace {

// By their lengths the pauses tell which batch they belong to.
constexpr double kFolderPause = 1;
constexpr double kListPause = 1.25;

} // namespace

BatchNote::BatchNote(FrmPicX& form, QWidget* parent) : ElidedLabel({}, parent), form_(form) {
    look::SetTextRank(*this, look::TextRank::Note);
    for (CommandButton* batch : {&form.Command10, &form.Command13}) {
        // Connected behind the handler that sends, so that this comes when the batch is over.
        batch->Click.Connect([self = QPointer<BatchNote>(this), batch] {
            if (self) self->Ended(*batch);
        });
    }
}

void BatchNote::PauseBegan(double seconds) {
    if (going_ == nullptr && seconds == kFolderPause) going_ = &form_.Command10;
    if (going_ == nullptr && seconds == kListPause) going_ = &form_.Command13;
    if (going_ == nullptr) return;
    ++sent_;
    const File file = PresentFile();
    of_ = file.of;
    SetText(tr("Sent %1, %2 of %3").arg(file.name).arg(sent_).arg(of_));
}

std::optional<double> BatchNote::Share() const {
    if (going_ == nullptr || of_ == 0) return std::nullopt;
    return static_cast<double>(sent_) / of_;
}

BatchNote::File BatchNote::PresentFile() const {
    if (going_ == &form_.Command10)
        return {QString::fromStdString(form_.File5.FileName()), form_.File5.ListCount()};
    const std::string row = Trim(form_.List2.List(sent_ - 1));
    const auto parts = Split(row, std::string(1, form_.ports.files.Separator()));
    return {QString::fromStdString(parts.empty() ? row : parts.back()), form_.List2.ListCount()};
}

// Another one that was clicked in a pause of this one ends without ending what is told.
void BatchNote::Ended(const CommandButton& batch) {
    if (&batch == going_) Clear();
}

void BatchNote::Clear() {
    going_ = nullptr;
    sent_ = 0;
    of_ = 0;
    SetText({});
}

} // namespace mirelle
