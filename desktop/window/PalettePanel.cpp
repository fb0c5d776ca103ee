#include "desktop/window/PalettePanel.h"

#include "desktop/binding/RowsView.h"
#include "desktop/look/Tokens.h"
#include "desktop/look/Typeface.h"
#include "desktop/window/ColourChart.h"
#include "desktop/window/Ground.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace mirelle {
namespace {

constexpr int kSideWidth = 104;
constexpr int kChartHeight = 64; // at least
constexpr int kPreviewHeight = 24;
constexpr int kSlotsInAColumn = 5;
constexpr int kSlotHeight = 22;
constexpr int kSlotSpacing = 3;
constexpr int kLayerWidth = 28;
constexpr QMargins kSlotText(-look::kSpaceSmall, 0, -look::kSpaceSmall, 0); // eleven characters have to fit

} // namespace

PalettePanel::PalettePanel(Binder& binder, QWidget* parent) : QWidget(parent) {
    Parts parts(binder, *this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(look::kSpaceSmall);
    column->addLayout(Head(parts));
    column->addLayout(ChartAndPreview(parts), 1);
    column->addLayout(Slots(parts));
    column->addLayout(Switches(parts));
    binder.Panel(binder.TheForm().FramePics, *this, caption_);
}

QLayout* PalettePanel::Head(Parts& parts) {
    FrmPicX& form = parts.Form();
    caption_ = parts.SectionCaption();
    auto* head = Row({caption_});
    head->addStretch(1);
    for (CommandButton* button : {&form.Command1x, &form.Command67, &form.Command4})
        head->addWidget(parts.Button(*button));
    return head;
}

QLayout* PalettePanel::ChartAndPreview(Parts& parts) {
    FrmPicX& form = parts.Form();
    auto* chart = new ColourChart(form, this);
    chart->setMinimumHeight(kChartHeight);
    parts.TheBinder().Looks(form.Picture2, *chart);

    auto* preview = new Ground(form.Frame2, look::kField, this);
    preview->setFixedSize(kSideWidth, kPreviewHeight);
    parts.TheBinder().Panel(form.Frame2, *preview);
    preview->setToolTip(QString::fromStdString(form.Frame2.Caption));

    RowsView* record = parts.Rows(form.List1);
    record->setAccessibleName(tr("Sampled colours"));
    record->setFixedWidth(kSideWidth);
    record->setMinimumHeight(look::kRowHeight);
    auto* side = Column();
    side->addWidget(preview);
    side->addWidget(record, 1);
    auto* row = Row({chart}, look::kSpace);
    row->setStretch(0, 1);
    row->addLayout(side);
    return row;
}

QLayout* PalettePanel::Slots(Parts& parts) {
    FrmPicX& form = parts.Form();
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kSlotSpacing);
    grid->setVerticalSpacing(1);
    constexpr int kColumns = 4; // button, colour, layer, and the gap
    for (int slot = 0; slot < form.Text2x.Count(); ++slot) {
        const int row = slot % kSlotsInAColumn;
        const int column = slot / kSlotsInAColumn * kColumns;
        look::ColorSwatchButton* button = parts.Swatch(form.cmdColor(slot));
        button->setFixedSize(kSlotHeight, kSlotHeight);
        QLineEdit* colour = parts.Field(form.Text2x(slot));
        colour->setFixedHeight(kSlotHeight);
        QLineEdit* layer = parts.Field(form.TextLayer(slot));
        layer->setAccessibleName(tr("Layer of colour %1").arg(slot + 1));
        layer->setFixedHeight(kSlotHeight);
        for (QLineEdit* field : {colour, layer}) {
            look::SetTextRank(*field, look::TextRank::Note);
            field->setTextMargins(kSlotText);
        }
        layer->setMinimumWidth(kLayerWidth);
        grid->addWidget(button, row, column);
        grid->addWidget(colour, row, column + 1);
        grid->addWidget(layer, row, column + 2);
        grid->setColumnStretch(column + 1, 5);
        grid->setColumnStretch(column + 2, 1);
    }
    grid->setColumnMinimumWidth(kColumns - 1, 2 * look::kEdge);
    return grid;
}

QLayout* PalettePanel::Switches(Parts& parts) {
    FrmPicX& form = parts.Form();
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(look::kSpaceLarge);
    grid->setVerticalSpacing(0);
    grid->addWidget(parts.Check(form.ckSample), 0, 0);
    grid->addWidget(parts.Check(form.Check2b), 0, 1);
    grid->addWidget(parts.Check(form.Check1), 1, 0);
    grid->setColumnStretch(2, 1);
    return grid;
}

} // namespace mirelle
