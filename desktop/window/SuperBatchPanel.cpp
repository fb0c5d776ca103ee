#include "desktop/window/SuperBatchPanel.h"

#include "desktop/binding/RowsView.h"
#include "desktop/look/ElidedLabel.h"
#include "desktop/look/Tokens.h"

#include <QCheckBox>
#include <QToolButton>

namespace mirelle {

SuperBatchPanel::SuperBatchPanel(Binder& binder, QWidget* parent) : Panel(parent) {
    Parts parts(binder, *this);
    FrmPicX& form = binder.TheForm();
    auto* head = Row({parts.Note(form.Label8(0)), parts.Note(form.Label8(1))}, look::kSpaceLarge);
    head->addWidget(parts.Button(form.Command15));
    head->setStretch(0, 1);
    head->setStretch(1, 1);
    Contents().addLayout(head);
    RowsView* list = parts.Rows(form.List2);
    list->setTextElideMode(Qt::ElideLeft);
    list->setMinimumHeight(2 * look::kRowHeight);
    Contents().addWidget(list, 1);
    Contents().addWidget(parts.Note(form.Label8(2)));
    auto* switches =
        Row({parts.Check(form.ckSingleFile), parts.Check(form.ckAppend), parts.Check(form.ckLoad)},
            look::kSpaceLarge);
    switches->addStretch(1);
    Contents().addLayout(switches);
    Bind(binder, form.Frame8);
}

} // namespace mirelle
