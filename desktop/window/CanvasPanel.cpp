#include "desktop/window/CanvasPanel.h"

#include "desktop/look/ProgressLine.h"
#include "desktop/look/Tokens.h"
#include "desktop/window/BatchNote.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace mirelle {
namespace {

constexpr int kSizeWidth = 48;

} // namespace

CanvasPanel::CanvasPanel(Binder& binder, QWidget* parent)
    : Panel(parent), progress_(new look::ProgressLine(this)), batch_(new BatchNote(binder.TheForm(), this)) {
    Parts parts(binder, *this);
    FrmPicX& form = binder.TheForm();
    QHBoxLayout* bar = Row({}, look::kSpaceSmall);
    const auto group = [&](std::initializer_list<QWidget*> widgets) {
        if (bar->count() > 0) {
            bar->addSpacing(look::kSpaceSmall);
            bar->addWidget(Divider(Qt::Vertical, *this));
            bar->addSpacing(look::kSpaceSmall);
        }
        for (QWidget* widget : widgets)
            bar->addWidget(widget);
    };
    group({parts.Button(form.Command23), parts.Check(form.Check4)});
    group({parts.Button(form.Command5), parts.Check(form.ckAutoPaste), parts.Button(form.Command8)});
    group({parts.Words(tr("Crop")), parts.Field(form.TextCrop(1), kSizeWidth),
           parts.Words(QString(QChar(0xD7))), parts.Field(form.TextCrop(0), kSizeWidth)});
    group({parts.Swatch(form.cmdColorDialog(0)), parts.Swatch(form.cmdColorDialog(1)),
           parts.Check(form.ckUseFormCanvas)});
    bar->addSpacing(look::kSpaceLarge);
    bar->addWidget(batch_, 1);
    group({parts.Button(form.cmdColorDialog(2)), parts.Button(form.cmdColorDialog(3))});
    group({parts.Button(form.cmdHideFrame(0)), parts.Button(form.cmdHideFrame(1))});
    Contents().addLayout(bar);
    Bind(binder, form.Frame5);
    setContentsMargins(look::kSpace, look::kSpaceSmall + 2, look::kSpace, look::kSpaceSmall + 2);
}

void CanvasPanel::ShowPause(double seconds) {
    pausing_ = seconds > 0;
    if (pausing_) batch_->PauseBegan(seconds);
    ShowProgress();
}

void CanvasPanel::ShowLongWork(bool going) {
    working_ = going;
    ShowProgress();
}

void CanvasPanel::ShowProgress() {
    if (!pausing_ && !working_) return progress_->Clear();
    if (const std::optional<double> share = batch_->Share()) return progress_->ShowShare(*share);
    progress_->ShowBusy();
}

void CanvasPanel::resizeEvent(QResizeEvent* event) {
    Panel::resizeEvent(event);
    const int inset = look::kCardRadius;
    progress_->setGeometry(inset, 0, width() - 2 * inset, look::kProgressLine);
    progress_->raise();
}

} // namespace mirelle
