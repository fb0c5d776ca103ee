// The program as users have it, window and all, on Qt's platform without a screen: what is painted goes into
// memory and nowhere else.
#pragma once

#include "app/Sampler.h"
#include "bench/Photograph.h"
#include "desktop/system/RealDesktop.h"
#include "desktop/window/MainWindow.h"
#include "tests/support/TemporaryFolder.h"

#include <QSize>
#include <string>

namespace mirelle::bench {

// Handles events until everything that wants to be painted is.
void PaintAll();

class WindowedProgram {
public:
    // With a folder of its own for its data, which holds an empty library. The window is as large as the
    // bench's picture unless told otherwise.
    explicit WindowedProgram(QSize size = {kWidth, kHeight});
    ~WindowedProgram();
    WindowedProgram(const WindowedProgram&) = delete;
    WindowedProgram& operator=(const WindowedProgram&) = delete;

    std::string Library() const { return home_ / "Support/Materials"; }
    const test::TemporaryFolder& Home() const { return home_; }

private:
    test::TemporaryFolder home_;
    RealDesktop desktop_;
    Sampler sampler_;

public:
    FrmPicX& form = sampler_.form;
    MainWindow window;
};

} // namespace mirelle::bench
