// Prints by how many pictures of 3840 x 2160 the program's memory grows when one is pasted into all holders
// and painted, with the one that the clipboard itself holds. A program of its own: in memory that others have
// used before nothing is seen to grow.
#include "bench/canvas/Grab.h"
#include "bench/window/WindowedProgram.h"

#include <cstdio>
#include <fstream>

#include <QApplication>
#include <QClipboard>

#include <malloc.h>
#include <unistd.h>

namespace mirelle::bench {
namespace {

// What of the program's memory lies in the machine's, in bytes.
double MemoryInUse() {
    std::ifstream table("/proc/self/statm");
    long size = 0;
    long resident = 0;
    table >> size >> resident;
    return static_cast<double>(resident) * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

double PicturesOfAPaste() {
    // A small window: the form gives back its empty surface, of the window's size, when it shows a picture.
    WindowedProgram program({1024, 700});
    QGuiApplication::clipboard()->setImage(MakeGrab());
    PaintAll();
    ::malloc_trim(0); // what was given back before is not to be had for nothing
    const double before = MemoryInUse();
    program.form.Command5.UserClick();
    PaintAll();
    return 1 + (MemoryInUse() - before) / static_cast<double>(kPictureBytes);
}

} // namespace
} // namespace mirelle::bench

int main(int count, char** arguments) {
    const QApplication application(count, arguments);
    std::printf("%f\n", mirelle::bench::PicturesOfAPaste());
}
