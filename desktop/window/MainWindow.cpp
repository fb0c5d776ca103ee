#include "desktop/window/MainWindow.h"

#include "desktop/binding/DevicePixels.h"
#include "desktop/binding/RowsView.h"
#include "desktop/binding/Updater.h"
#include "desktop/canvas/SamplingCanvas.h"
#include "desktop/window/AccessibleRoles.h"
#include "desktop/window/CanvasDrops.h"
#include "desktop/window/CanvasPanel.h"
#include "desktop/window/FloatingPanel.h"
#include "desktop/window/GradientPanel.h"
#include "desktop/window/ImageFXPanel.h"
#include "desktop/window/MaterialPanel.h"
#include "desktop/window/PanelPlaces.h"
#include "desktop/window/SendPanel.h"
#include "desktop/window/Shortcuts.h"
#include "desktop/window/SuperBatchPanel.h"

#include <QApplication>
#include <QCloseEvent>

#include <algorithm>
#include <utility>

namespace mirelle {
namespace {

constexpr QSize kUsualWindow{1280, 800};
constexpr int kSendsWidth = 64;

int StateOf(const QWidget& window) {
    if (window.isMinimized()) return kWindowMinimized;
    return window.isMaximized() || window.isFullScreen() ? kWindowMaximized : kWindowNormal;
}

} // namespace

MainWindow::MainWindow(FrmPicX& form)
    : form_(form), binder_(form), activations_(*this), folders_(form), bounds_(*this),
      canvas_(MakeCanvas(form)) {
    setObjectName("FrmPicX");
    for (Shape* shape : {&form.Shape1, &form.Shape2, &form.Shape3})
        binder_.ShownElsewhere(*shape);
    BuildPanels();
    new Shortcuts(binder_, *this);
    new CanvasDrops(form, *canvas_);
    resize(WindowBounds::StartSize(*this, kUsualWindow));
    setMinimumSize(kLeastWindow.boundedTo(size()));

    ShowWhenChanged(form, this, [this] {
        const QString title = QString::fromStdString(form_.Caption);
        if (windowTitle() != title) setWindowTitle(title);
    });
    form.Watch([self = QPointer<MainWindow>(this)] {
        if (self) self->FollowFormAtOnce();
    });
    connect(&bounds_, &WindowBounds::ScreenChanged, this, [this] {
        PlaceLater();
        TellFormLater();
    });
    connect(&activations_, &Activations::Activated, this,
            [this] { binder_.Run([this] { form_.Activate(); }); });
    connect(&activations_, &Activations::Activated, &folders_, &FolderWatch::Look);
}

MainWindow::~MainWindow() {
    // Panels hide when they go; nothing is to be placed then.
    for (Panel* panel : findChildren<Panel*>())
        panel->disconnect(this);
}

// The first of the window's widgets: from here on each is asked for its role as soon as it has a name.
SamplingCanvas* MainWindow::MakeCanvas(FrmPicX& form) {
    InstallAccessibleRoles();
    return new SamplingCanvas(form, this);
}

void MainWindow::BuildPanels() {
    material_ = new MaterialPanel(binder_, this);
    sends_ = new SendPanel(binder_, this);
    lower_ = new CanvasPanel(binder_, this);
    imageFX_ = new ImageFXPanel(binder_, this);
    gradients_ = new GradientPanel(binder_, this);
    superBatch_ = new SuperBatchPanel(binder_, this);
    floating_ = new FloatingPanel(binder_, canvas_, this);
    for (Panel* panel :
         {static_cast<Panel*>(material_), static_cast<Panel*>(sends_), static_cast<Panel*>(lower_),
          static_cast<Panel*>(imageFX_), static_cast<Panel*>(gradients_), static_cast<Panel*>(superBatch_)}) {
        connect(panel, &Panel::VisibilityChanged, this, &MainWindow::PlaceLater);
    }
}

void MainWindow::Start() {
    activations_.NoteFirst();
    canvas_->setFocus(); // keys are the program's until a field is chosen
    show();
    bounds_.FollowScreens();
    TellForm();
    form_.Visible = true;
    binder_.Run([this] { form_.Activate(); });
}

void MainWindow::ShowPause(double seconds) {
    lower_->ShowPause(seconds);
}

void MainWindow::PlaceAll() {
    placing_ = false;
    canvas_->setGeometry(rect());
    PanelNeeds needs;
    needs.window = size();
    needs.lowerHeight = lower_->sizeHint().height();
    needs.sendsWidth = kSendsWidth;
    needs.upperPart = material_->UpperPart();
    Panel* strip = imageFX_->isHidden() ? static_cast<Panel*>(gradients_) : imageFX_;
    needs.stripHeight = [strip](int width) {
        return strip->hasHeightForWidth() ? strip->heightForWidth(width) : strip->sizeHint().height();
    };
    needs.rightShown = !material_->isHidden();
    needs.lowerShown = !lower_->isHidden();
    const PanelPlaces places = PlacePanels(needs);
    lower_->setGeometry(places.lower);
    sends_->setGeometry(places.sends);
    material_->setGeometry(places.material);
    strip->setGeometry(places.strip);
    superBatch_->setGeometry(places.superBatch);
    material_->CoverUpperPart(!superBatch_->isHidden());
    superBatch_->raise();
    floating_->raise();
    canvas_->SetFreeArea(places.free);
}

void MainWindow::PlaceLater() {
    if (std::exchange(placing_, true)) return;
    QMetaObject::invokeMethod(this, &MainWindow::PlaceAll, Qt::QueuedConnection);
}

void MainWindow::TellFormLater() {
    if (std::exchange(telling_, true)) return;
    QMetaObject::invokeMethod(this, &MainWindow::TellForm, Qt::QueuedConnection);
}

void MainWindow::TellForm() {
    telling_ = false;
    const QSize client = DeviceSize(*canvas_);
    knownState_ = StateOf(*this);
    binder_.Run([&] { form_.UserWindow(knownState_, {client.width(), client.height()}); });
}

void MainWindow::FollowFormAtOnce() {
    const bool hourglass = form_.MousePointer == kPointerHourglass;
    if (std::exchange(hourglass_, hourglass) != hourglass) {
        if (hourglass)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        else
            QApplication::restoreOverrideCursor();
        lower_->ShowLongWork(hourglass);
    }
    if (std::exchange(knownState_, form_.WindowState) == form_.WindowState) return;
    const auto others = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen);
    switch (form_.WindowState) {
    case kWindowMinimized:
        setWindowState(others | Qt::WindowMinimized);
        break;
    case kWindowMaximized:
        setWindowState(others | Qt::WindowMaximized);
        break;
    default:
        setWindowState(others);
    }
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) PlaceLater();
    return QWidget::event(event);
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    PlaceAll();
    TellFormLater();
}

void MainWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) TellFormLater();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    binder_.Run([this] { form_.UserClose(); });
}

} // namespace mirelle
