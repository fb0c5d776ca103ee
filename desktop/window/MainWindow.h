// The program's window: the canvas, the panels over it, and what the form says of its window. It only
// assembles.
#pragma once

#include "desktop/binding/Binder.h"
#include "desktop/window/Activations.h"
#include "desktop/window/FolderWatch.h"
#include "desktop/window/WindowBounds.h"

#include <QWidget>

namespace mirelle {

class CanvasPanel;
class FloatingPanel;
class GradientPanel;
class ImageFXPanel;
class MaterialPanel;
class SamplingCanvas;
class SendPanel;
class SuperBatchPanel;

class MainWindow : public QWidget {
    Q_OBJECT

public:
    explicit MainWindow(FrmPicX& form);
    ~MainWindow() override;

    // Shows the window and runs the form's first Activate. The form is loaded.
    void Start();
    const Binder& TheBinder() const { return binder_; }
    SamplingCanvas& Canvas() { return *canvas_; }

public slots:
    // A handler pauses so many seconds; 0 when the pause has ended.
    void ShowPause(double seconds);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    SamplingCanvas* MakeCanvas(FrmPicX& form);
    void BuildPanels();
    void PlaceAll();
    void PlaceLater();
    void TellFormLater();
    void TellForm();
    void FollowFormAtOnce(); // what can't wait for the next turn: pointer, window state

    FrmPicX& form_;
    Binder binder_;
    Activations activations_;
    FolderWatch folders_;
    WindowBounds bounds_;
    SamplingCanvas* canvas_;
    MaterialPanel* material_ = nullptr;
    SendPanel* sends_ = nullptr;
    CanvasPanel* lower_ = nullptr;
    ImageFXPanel* imageFX_ = nullptr;
    GradientPanel* gradients_ = nullptr;
    SuperBatchPanel* superBatch_ = nullptr;
    FloatingPanel* floating_ = nullptr;
    bool placing_ = false;
    bool telling_ = false;
    bool hourglass_ = false;
    int knownState_ = kWindowNormal;
};

} // namespace mirelle
