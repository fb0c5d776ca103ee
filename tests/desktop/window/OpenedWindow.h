// The whole program in its window, over scripted ports.
#pragma once

#include "desktop/window/MainWindow.h"
#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <QCoreApplication>

#include <memory>

namespace mirelle::test {

struct OpenedWindow {
    explicit OpenedWindow(QSize size = {1024, 700}) {
        program.files.AddFolder("C:\\Mirelle\\Support\\Materials\\Art");
        program.files.AddFile("C:\\Mirelle\\Support\\Materials\\Art_3.jpg");
        program.loader.pictures["C:\\Mirelle\\Support\\Materials\\Art_3.jpg"] = ChartPicture(1600, 1200);
        form.Load();
        window = std::make_unique<MainWindow>(form);
        window->resize(size);
        window->Start();
        Settle();
    }

    // Until nothing more wants to be shown or placed: a change may ask for another round.
    static void Settle() {
        for (int round = 0; round < 6; ++round)
            QCoreApplication::processEvents();
    }

    QWidget* Find(const char* name) const { return window->findChild<QWidget*>(name); }

    TestProgram program;
    FrmPicX& form = program.form;
    std::unique_ptr<MainWindow> window;
};

} // namespace mirelle::test
