#include "bench/window/WindowedProgram.h"

#include <QApplication>
#include <QEvent>

namespace mirelle::bench {
namespace {

class PaintWatch : public QObject {
public:
    PaintWatch() { qApp->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }
    bool TakePainted() { return std::exchange(painted_, false); }

private:
    bool painted_ = false;
};

} // namespace

// A round without painting may place what the next one paints.
void PaintAll() {
    PaintWatch watch;
    constexpr int kQuietRounds = 2;
    for (int quiet = 0; quiet < kQuietRounds; ++quiet) {
        QCoreApplication::processEvents();
        if (watch.TakePainted()) quiet = -1;
    }
}

WindowedProgram::WindowedProgram(QSize size)
    : desktop_((home_.MakeFolder("Support/Materials"), home_.Path())), sampler_(desktop_.ThePorts()),
      window((sampler_.form.Load(), sampler_.form)) {
    desktop_.dialogs.SetParent(&window);
    desktop_.screen.SetWindow(&window);
    window.Start();
    window.resize(size);
    PaintAll();
}

WindowedProgram::~WindowedProgram() = default;

} // namespace mirelle::bench
