#include "desktop/window/LibraryPanel.h"

#include "desktop/binding/RowsView.h"
#include "desktop/look/Tokens.h"

#include <QGridLayout>
#include <QToolButton>

namespace mirelle {
namespace {

constexpr int kJumpsInARow = 5;

} // namespace

LibraryPanel::LibraryPanel(Binder& binder, QWidget* parent) : QWidget(parent) {
    Parts parts(binder, *this);
    FrmPicX& form = binder.TheForm();
    auto* jumps = new QGridLayout;
    jumps->setSpacing(look::kSpaceSmall);
    form.cmdMatDirs.ForEach([&](CommandButton& jump) {
        jumps->addWidget(parts.Button(jump), jump.Index() / kJumpsInARow, jump.Index() % kJumpsInARow);
    });
    RowsView* numbers = parts.Rows(form.ListHigh);
    numbers->setAccessibleName(tr("File numbers of this folder"));
    numbers->setFixedHeight(2 * look::kIconButton + look::kSpaceSmall);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(look::kSpaceLarge);
    row->addLayout(jumps);
    row->addWidget(numbers, 1);
    binder.Panel(form.Frame7, *this);
}

} // namespace mirelle
