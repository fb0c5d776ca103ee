#include "desktop/window/NamePanel.h"

#include "desktop/look/ElidedLabel.h"
#include "desktop/look/SpinArrows.h"
#include "desktop/look/Tokens.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace mirelle {
namespace {

constexpr int kCounterWidth = 52;

} // namespace

NamePanel::NamePanel(Binder& binder, QWidget* parent) : QWidget(parent) {
    Parts parts(binder, *this);
    FrmPicX& form = binder.TheForm();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(look::kSpaceSmall);

    QLabel* caption = parts.SectionCaption();
    look::ElidedLabel* lastSave = parts.Note(form.Label2(1));
    auto* head = Row({caption}, look::kSpace);
    head->addStretch(1);
    head->addWidget(lastSave);
    column->addLayout(head);

    QComboBox* name = parts.EditableChoice(form.textProfileName);
    binder.Colours(form.textProfileName, *name);
    auto* nameRow = Row({name, parts.Button(form.cmdOpen2Combo), parts.Button(form.Command3)});
    nameRow->setStretch(0, 1);
    column->addLayout(nameRow);

    QCheckBox* increment = parts.Check(form.ckIncrement);
    QLineEdit* counter = parts.Field(form.TextLoops, kCounterWidth);
    binder.Colours(form.TextLoops, *counter);
    auto* arrows = new look::SpinArrows(this);
    binder.Spin(form.UpDown4, *arrows);
    QToolButton* reset = parts.Button(form.cmdResetfCnt);
    QCheckBox* count = parts.Check(form.ckGetCount);
    binder.Colours(form.ckGetCount, *count);
    auto* counterRow = Row({increment, counter, arrows, reset});
    counterRow->setSpacing(look::kSpaceSmall);
    counterRow->addStretch(1);
    counterRow->addWidget(count);
    column->addLayout(counterRow);

    auto* switches = Row({parts.Check(form.ckNoOpen), parts.Check(form.Check3)}, look::kSpaceLarge);
    switches->addStretch(1);
    column->addLayout(switches);

    binder.Panel(form.Frame3, *this, caption);
}

} // namespace mirelle
