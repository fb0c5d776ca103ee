#include "desktop/window/ImageFXPanel.h"

#include "desktop/canvas/FittedView.h"
#include "desktop/look/Tokens.h"
#include "desktop/window/EffectButton.h"
#include "desktop/window/FlowLayout.h"
#include "desktop/window/Ground.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QSlider>

#include <array>

namespace mirelle {
namespace {

// All effects in their families: kernels, smudgers, point effects, contrast.
constexpr std::array kEffects = {
    &FrmPicX::cmdBlur1,         &FrmPicX::cmdBlur2,          &FrmPicX::cmdNoRed,
    &FrmPicX::cmdNoGreen,       &FrmPicX::cmdNoBlue,         &FrmPicX::cmdIncreaseRed,
    &FrmPicX::cmdIncreaseGreen, &FrmPicX::cmdIncreaseBlue,   &FrmPicX::cmdIncreaseRGB,
    &FrmPicX::cmdDecreaseRed,   &FrmPicX::cmdDecreaseGreen,  &FrmPicX::cmdDecreaseBlue,
    &FrmPicX::cmdDecreaseRGB,   &FrmPicX::cmdGlowInTheDark,  &FrmPicX::cmdSunShinnyDay,
    &FrmPicX::cmdVividSilk,     &FrmPicX::cmdSilk,           &FrmPicX::cmdFlatten,
    &FrmPicX::cmdFlatten2,      &FrmPicX::cmdNeonNegation,   &FrmPicX::cmdNegative,
    &FrmPicX::cmdVividNeg,      &FrmPicX::cmdIncoherence,    &FrmPicX::cmdPixilated,
    &FrmPicX::cmdDarken,        &FrmPicX::cmdLighten,        &FrmPicX::cmdEmboss,
    &FrmPicX::cmdPointalism,    &FrmPicX::cmdPointalismVert, &FrmPicX::cmdNegativeX,
    &FrmPicX::cmdFlipVert,      &FrmPicX::cmdFlipHoriz,      &FrmPicX::cmdGreyScale,
    &FrmPicX::cmdRGB2BGR,       &FrmPicX::cmdRGB2BRG,        &FrmPicX::cmdRGB2GBR,
    &FrmPicX::cmdRGB2GRB,       &FrmPicX::cmdRGB2RBG,        &FrmPicX::cmdCont,
    &FrmPicX::cmdCont33,
};

constexpr int kPreviewWidth = 52;

} // namespace

ImageFXPanel::ImageFXPanel(Binder& binder, QWidget* parent) : Panel(parent) {
    Parts parts(binder, *this);
    FrmPicX& form = binder.TheForm();
    auto* strip = Row({}, look::kSpaceLarge);
    strip->addLayout(Effects(binder), 1);
    auto* channels = Column(look::kSpace);
    channels->addWidget(Keeping(parts));
    channels->addLayout(Sliders(parts));
    channels->addStretch(1);
    strip->addLayout(channels);
    strip->addLayout(Previews(parts));
    Contents().addLayout(strip);
    Bind(binder, form.FrameRGBFX);
}

QLayout* ImageFXPanel::Effects(Binder& binder) {
    auto* effects = new FlowLayout(2);
    for (const auto effect : kEffects)
        effects->addWidget(new EffectButton(binder, binder.TheForm().*effect, this));
    return effects;
}

QLayout* ImageFXPanel::Sliders(Parts& parts) {
    FrmPicX& form = parts.Form();
    constexpr std::array kLetters = {"B", "G", "R"}; // by channel: 0 blue, 1 green, 2 red
    const QStringList names = {tr("Shift of blue"), tr("Shift of green"), tr("Shift of red")};
    auto* grid = new QGridLayout;
    grid->setSpacing(look::kSpaceSmall);
    grid->setAlignment(Qt::AlignTop);
    for (int channel = 2; channel >= 0; --channel) {
        auto* label = new QLabel(this);
        label->setAlignment(Qt::AlignCenter);
        parts.TheBinder().Caption(form.LabelRGBx(channel), *label);
        parts.TheBinder().Ink(form.LabelRGBx(channel), *label);
        label->setText(QString::fromLatin1(kLetters[static_cast<std::size_t>(channel)]));
        QSlider* slider = parts.Slider(form.HSColorShift(channel));
        slider->setAccessibleName(names[channel]);
        grid->addWidget(label, 2 - channel, 0);
        grid->addWidget(slider, 2 - channel, 1);
    }
    return grid;
}

QWidget* ImageFXPanel::Keeping(Parts& parts) {
    FrmPicX& form = parts.Form();
    auto* ground = new Ground(form.FrameRGBFX2, look::kCard, this);
    parts.TheBinder().Panel(form.FrameRGBFX2, *ground);
    Parts inside(parts.TheBinder(), *ground);
    auto* row = new QHBoxLayout(ground);
    row->setContentsMargins(look::kSpaceSmall, look::kSpaceSmall, look::kSpaceSmall, look::kSpaceSmall);
    row->setSpacing(look::kSpaceSmall);
    QWidget* const widgets[] = {inside.Button(form.cmdSetMain),        inside.Button(form.cmdSetMain2),
                                inside.Check(form.ckApplyRGB),         inside.Button(form.cmdRGBUndo),
                                inside.Button(form.cmdResetRGBSlider), inside.Button(form.cmdCopy)};
    for (QWidget* widget : widgets)
        row->addWidget(widget, 0, Qt::AlignCenter);
    return ground;
}

QLayout* ImageFXPanel::Previews(Parts& parts) {
    FrmPicX& form = parts.Form();
    auto* previews = Column();
    for (PictureBox* box : {&form.Picture1, &form.picTemp}) {
        FittedView* preview = parts.Preview(*box, {kPreviewWidth, kPreviewWidth});
        preview->setFixedWidth(kPreviewWidth);
        previews->addWidget(preview);
    }
    return previews;
}

} // namespace mirelle
