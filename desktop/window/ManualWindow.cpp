#include "desktop/window/ManualWindow.h"

#include "app/UserManual.h"
#include "desktop/binding/Updater.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Tokens.h"
#include "desktop/look/Typeface.h"
#include "desktop/window/Parts.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>

namespace mirelle {
namespace {

constexpr QSize kSize{360, 148};
constexpr int kButtonWidth = 96;
constexpr int kDrawing = 64;
constexpr int kMargin = 20;

} // namespace

ManualWindow::ManualWindow(UserManual& manual, FrmPicX& mainForm, const QWidget& mainWindow)
    : manual_(manual), binder_(mainForm), mainWindow_(mainWindow) {
    setObjectName("zFormUM");
    setFixedSize(kSize);
    auto* heading = new QLabel(this);
    QFont large = heading->font();
    large.setPixelSize(look::kTypeSizeHeading);
    heading->setFont(large);
    heading->setText(tr("Mirelle in ten minutes"));
    auto* words = new QLabel(tr("From the first grab to a material in SketchUp."), this);
    words->setWordWrap(true);
    look::SetTextRank(*words, look::TextRank::Note);
    QPushButton* local = Button(manual.Command1(1));
    QPushButton* web = Button(manual.Command1(0));
    local->setDefault(true);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin + kDrawing + kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(look::kSpaceSmall);
    column->addWidget(heading);
    column->addWidget(words);
    column->addStretch(1);
    auto* buttons = Row({local, web}, look::kSpace);
    buttons->addStretch(1);
    column->addLayout(buttons);
    local->setFocus();
    ShowWhenChanged(manual, this, [this] { FollowForm(); });
}

QPushButton* ManualWindow::Button(CommandButton& control) {
    auto* button = new QPushButton(this);
    button->setFixedSize(kButtonWidth, look::kIconButton);
    button->setAutoDefault(true);
    binder_.Button(control, *button);
    ShowWhenChanged(control, button,
                    [&control, button] { button->setText(QString::fromStdString(control.Caption)); });
    return button;
}

void ManualWindow::FollowForm() {
    setWindowTitle(QString::fromStdString(manual_.Caption));
    if (manual_.Visible == isVisible()) return;
    if (!manual_.Visible) {
        hide();
        return;
    }
    const QRect screen = mainWindow_.screen()->availableGeometry();
    move(screen.center() - QPoint(width(), height()) / 2);
    showNormal();
    raise();
    activateWindow();
}

void ManualWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(look::kCard));
    look::PaintFitted(painter, look::IconDrawing(u"application"),
                      QRectF(kMargin, (height() - kDrawing) / 2.0, kDrawing, kDrawing), QColor(look::kText));
}

void ManualWindow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* button = qobject_cast<QPushButton*>(focusWidget())) button->click();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ManualWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    binder_.Run([this] { manual_.UserClose(); });
}

} // namespace mirelle
