// show_teller: writes into shown.txt, in the folder that it is started in, how it is asked to show itself.
#include "desktop/windows/System.h"

#include <fstream>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    STARTUPINFOW start{};
    GetStartupInfoW(&start);
    const int showMode = (start.dwFlags & STARTF_USESHOWWINDOW) != 0 ? start.wShowWindow : -1;
    std::ofstream("shown.txt", std::ios::binary) << showMode << '\n';
    return 0;
}
