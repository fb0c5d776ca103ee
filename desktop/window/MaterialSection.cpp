#include "desktop/window/MaterialSection.h"

#include "desktop/canvas/FittedView.h"
#include "desktop/canvas/MaterialView.h"
#include "desktop/look/Tokens.h"
#include "desktop/window/Ground.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>
#include <QToolButton>

namespace mirelle {
namespace {

constexpr int kViewportHeight = 150;
constexpr int kViewportLeast = 80;
// How the full-size view and the thumbnail part the width.
constexpr int kViewportShare = 5;
constexpr int kSideShare = 3;
constexpr int kThumbnailWidth = 96;
constexpr int kThumbnailHeight = 84;

} // namespace

MaterialSection::MaterialSection(Binder& binder, QWidget* parent) : QWidget(parent) {
    Parts parts(binder, *this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(look::kSpaceSmall);
    column->addLayout(Head(parts));
    auto* body = Row({Viewport(parts)}, look::kSpace);
    body->setStretch(0, kViewportShare);
    body->addLayout(Side(parts), kSideShare);
    column->addLayout(body, 1);
}

QLayout* MaterialSection::Head(Parts& parts) {
    FrmPicX& form = parts.Form();
    auto* caption = new QLabel(this);
    caption->setCursor(Qt::PointingHandCursor);
    parts.TheBinder().Caption(form.Label2(0), *caption);
    auto* head = Row({caption});
    head->addStretch(1);
    head->addWidget(parts.Button(form.Command12));
    head->addWidget(parts.Button(form.cmdColorPick));
    return head;
}

QWidget* MaterialSection::Viewport(Parts& parts) {
    FrmPicX& form = parts.Form();
    auto* frame = new Ground(form.FrameMatCanvas, look::kField, this);
    parts.TheBinder().Panel(form.FrameMatCanvas, *frame);
    Parts inside(parts.TheBinder(), *frame);
    auto* view = new MaterialView(form, frame);
    view->setMinimumHeight(kViewportLeast);
    view->SetUsualHeight(kViewportHeight);
    parts.TheBinder().ShownElsewhere(form.picSmall);
    parts.TheBinder().ShownElsewhere(form.PicScroll);
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(1, 1, 1, 1);
    grid->setSpacing(0);
    grid->addWidget(view, 0, 0);
    grid->addWidget(inside.Bar(form.VSImage, Qt::Vertical), 0, 1);
    grid->addWidget(inside.Bar(form.HSImage, Qt::Horizontal), 1, 0);
    grid->setRowStretch(0, 1);
    grid->setColumnStretch(0, 1);
    return frame;
}

QLayout* MaterialSection::Side(Parts& parts) {
    FrmPicX& form = parts.Form();
    auto* frame = new Ground(form.FrameMatCanvas2, look::kField, this);
    parts.TheBinder().Panel(form.FrameMatCanvas2, *frame);
    Parts inside(parts.TheBinder(), *frame);
    auto* thumbnail = inside.Preview(form.Image1, {kThumbnailWidth, kThumbnailHeight});
    auto* room = new QVBoxLayout(frame);
    room->setContentsMargins(1, 1, 1, 1);
    room->addWidget(thumbnail);
    frame->setMinimumWidth(kThumbnailWidth);
    auto* side = Column();
    side->addWidget(frame, 1);
    for (CheckBox* check : {&form.ckKeep, &form.ckLock, &form.ckOnly})
        side->addWidget(parts.Check(*check));
    return side;
}

} // namespace mirelle
