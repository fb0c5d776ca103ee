#include "desktop/window/GradientPanel.h"

#include "desktop/canvas/FittedView.h"
#include "desktop/look/Tokens.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>
#include <QToolButton>

namespace mirelle {
namespace {

constexpr int kPreviewWidth = 80;
constexpr int kPreviewHeight = 44;

} // namespace

GradientPanel::GradientPanel(Binder& binder, QWidget* parent) : Panel(parent) {
    Parts parts(binder, *this);
    FrmPicX& form = binder.TheForm();
    auto* strip = Row({}, look::kSpaceLarge);
    strip->addLayout(Pictures(parts));
    strip->addLayout(Fade(parts), 1);
    strip->addWidget(FormGradient(parts), 1);
    Contents().addLayout(strip);
    Bind(binder, form.FrameGradFX);
}

QLayout* GradientPanel::Pictures(Parts& parts) {
    FrmPicX& form = parts.Form();
    auto* grid = new QGridLayout;
    grid->setSpacing(look::kSpaceSmall);
    grid->setAlignment(Qt::AlignTop);
    int column = 0;
    for (PictureBox* box : {&form.pic1grad, &form.pic2grad, &form.picDest}) {
        FittedView* preview = parts.Preview(*box, {kPreviewWidth, kPreviewHeight});
        preview->setFixedSize(kPreviewWidth, kPreviewHeight);
        grid->addWidget(preview, 0, column++);
    }
    grid->addWidget(parts.Check(form.ckGradPic(1)), 1, 0);
    grid->addWidget(parts.Check(form.ckGradPic(0)), 1, 1);
    grid->addWidget(parts.Check(form.chkStretch), 1, 2);
    QComboBox* direction = parts.Choice(form.cmbDirection);
    direction->setAccessibleName(tr("Direction of the gradient"));
    grid->addWidget(direction, 2, 0, 1, 3);
    return grid;
}

QLayout* GradientPanel::Fade(Parts& parts) {
    FrmPicX& form = parts.Form();
    auto* column = Column();
    auto* buttons = Row();
    for (CommandButton* button : {&form.cmdGradV(0), &form.cmdGradV(1)})
        buttons->addWidget(parts.Button(*button));
    form.optDirection.ForEach([&](OptionButton& option) { buttons->addWidget(parts.Option(option)); });
    buttons->addStretch(1);
    column->addLayout(buttons);
    auto* sliders = Row({parts.Slider(form.hStart), parts.Slider(form.hEnd)}, look::kSpace);
    column->addLayout(sliders);
    auto* pictures = Row();
    form.cmdSwapPic.ForEach([&](CommandButton& button) { pictures->addWidget(parts.Button(button)); });
    pictures->addWidget(parts.Button(form.cmdGradReset));
    pictures->addWidget(parts.Swatch(form.cmdColorDialog(4)));
    pictures->addStretch(1);
    column->addLayout(pictures);
    return column;
}

QWidget* GradientPanel::FormGradient(Parts& parts) {
    FrmPicX& form = parts.Form();
    auto* frame = new QWidget(this);
    Parts inside(parts.TheBinder(), *frame);
    QLabel* caption = inside.SectionCaption();
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(look::kSpaceSmall);
    auto* head = Row({caption});
    head->addStretch(1);
    head->addWidget(inside.Check(form.ckFormDirection));
    head->addWidget(inside.Words(tr("Horizontal")));
    column->addLayout(head);
    auto* grid = new QGridLayout;
    grid->setSpacing(look::kSpaceSmall);
    ScrollBar* const rows[3][2] = {{&form.RS, &form.RF}, {&form.GS, &form.GF}, {&form.BS, &form.BF}};
    constexpr const char* kNames[3] = {"R", "G", "B"};
    for (int row = 0; row < 3; ++row) {
        grid->addWidget(inside.Words(QString::fromLatin1(kNames[row])), row, 0);
        for (int side = 0; side < 2; ++side) {
            QSlider* slider = inside.Slider(*rows[row][side], Binder::Drag::Changes);
            slider->setAccessibleName(
                tr("%1 of the gradient's %2").arg(kNames[row], side == 0 ? tr("start") : tr("end")));
            grid->addWidget(slider, row, side + 1);
        }
    }
    column->addLayout(grid);
    parts.TheBinder().Panel(form.Frame1, *frame, caption);
    return frame;
}

} // namespace mirelle
