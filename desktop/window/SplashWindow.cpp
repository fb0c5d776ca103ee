#include "desktop/window/SplashWindow.h"

#include "app/FrmPicX.h"
#include "desktop/binding/ControlEvents.h"
#include "desktop/binding/HandlerGuard.h"
#include "desktop/binding/Updater.h"
#include "desktop/look/Surface.h"
#include "desktop/look/Tokens.h"
#include "desktop/look/Typeface.h"
#include "desktop/window/BrickWall.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>

#include <utility>

namespace mirelle {
namespace {

constexpr QSize kSize{480, 270};
constexpr int kWallWidth = 208;
constexpr int kMargin = 24;
// The crop on the wall, in parts of a hundred of the wall.
constexpr QRect kCrop{18, 22, 58, 40};

} // namespace

SplashWindow::SplashWindow(Splash& splash, Dialogs& dialogs)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), splash_(splash), dialogs_(dialogs) {
    setObjectName("frmSplasholaSUNDIAL");
    setAttribute(Qt::WA_QuitOnClose, false);
    setFixedSize(kSize);
    tick_.setTimerType(Qt::PreciseTimer);
    connect(&tick_, &QTimer::timeout, this,
            [this] { RunGuarded(dialogs_, [this] { splash_.Timer1.Advance(splash_.Timer1.Interval); }); });
    ShowWhenChanged(splash_, this, [this] { FollowForm(); });
    ShowWhenChanged(splash_.Timer1, this, [this] { FollowTimer(); })->Watch(splash_);
}

void SplashWindow::BuildWords() {
    auto* words = new QWidget(this);
    words->setGeometry(kWallWidth, 0, width() - kWallWidth, height());
    auto* title = new QLabel(App::Title);
    QFont large = title->font();
    large.setPixelSize(look::kTypeSizeTitle);
    title->setFont(large);
    auto* purpose = new QLabel(tr("Desktop picture sampler"));
    QLabel* version = Line(splash_.lblVersion);
    QLabel* date = Line(splash_.lblDate);
    QLabel* hint = Line(splash_.Label1);
    for (QLabel* line : {title, purpose, version, date}) // a click on them is a click on the form
        line->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (QLabel* line : {version, date, hint})
        look::SetTextRank(*line, look::TextRank::Note);
    // The label has a click of its own; the form is not to see it again.
    hint->setAttribute(Qt::WA_NoMousePropagation);
    hint->setCursor(Qt::PointingHandCursor);
    new ControlEvents(splash_.Label1, *hint, dialogs_, ControlEvents::Take::FullClick);

    auto* column = new QVBoxLayout(words);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(look::kSpaceSmall);
    for (QLabel* line : {title, purpose})
        column->addWidget(line);
    column->addStretch(1);
    for (QLabel* line : {version, date})
        column->addWidget(line);
    column->addSpacing(look::kSpace);
    column->addWidget(hint);
    words->show();
}

QLabel* SplashWindow::Line(Label& control) {
    auto* line = new QLabel;
    line->setObjectName(QString::fromStdString(control.FullName()));
    ShowWhenChanged(control, line,
                    [&control, line] { line->setText(QString::fromStdString(control.Caption)); });
    return line;
}

void SplashWindow::FollowForm() {
    setWindowTitle(QString::fromStdString(splash_.Caption));
    if (splash_.Visible) ToTheMiddle();
    if (splash_.Visible && !std::exchange(worded_, true))
        ShowAndBuildWords();
    else
        setVisible(splash_.Visible);
}

// The words are laid out while the window manager finds the window its place, for which it would wait
// otherwise. Where windows are painted the moment they are shown, this one is not.
void SplashWindow::ShowAndBuildWords() {
    setUpdatesEnabled(false);
    show();
    BuildWords();
    setUpdatesEnabled(true);
}

void SplashWindow::FollowTimer() {
    tick_.setInterval(splash_.Timer1.Interval);
    const bool runs = splash_.Timer1.Enabled && splash_.Visible;
    if (runs && !tick_.isActive()) tick_.start();
    if (!runs) tick_.stop();
}

// The form tells its middle in twips of the screen's own pixels.
void SplashWindow::ToTheMiddle() {
    const qreal twips = kTwipsPerPixel * screen()->devicePixelRatio();
    const QPointF middle((splash_.Left + splash_.Width / 2) / twips,
                         (splash_.Top + splash_.Height / 2) / twips);
    move(screen()->geometry().topLeft() + (middle - QPointF(width(), height()) / 2).toPoint());
}

void SplashWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(look::kCard));
    const QRect wall(0, 0, kWallWidth, height());
    painter.setRenderHint(QPainter::Antialiasing);
    PaintBrickWall(painter, wall,
                   {wall.width() * kCrop.x() / 100, wall.height() * kCrop.y() / 100,
                    wall.width() * kCrop.width() / 100, wall.height() * kCrop.height() / 100});
    look::Surface(painter).Edge(rect(), 0, QColor(look::kCardEdge));
    if (!std::exchange(painted_, true))
        QMetaObject::invokeMethod(this, &SplashWindow::Seen, Qt::QueuedConnection);
}

void SplashWindow::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
}

void SplashWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (std::exchange(pressed_, false) && event->button() == Qt::LeftButton)
        RunGuarded(dialogs_, [this] { splash_.Click(); });
}

void SplashWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return)
        RunGuarded(dialogs_, [this] { splash_.Click(); });
    else
        QWidget::keyPressEvent(event);
}

void SplashWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    RunGuarded(dialogs_, [this] { splash_.UserClose(); });
}

} // namespace mirelle
