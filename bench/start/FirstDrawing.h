// Starts programs and learns from the X server when one has drawn its first window.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace mirelle::bench {

class FirstDrawing {
public:
    // On the display that the environment names. Throws std::runtime_error where there is none, or where it
    // can't tell of drawings.
    FirstDrawing();
    ~FirstDrawing();
    FirstDrawing(const FirstDrawing&) = delete;
    FirstDrawing& operator=(const FirstDrawing&) = delete;

    // Seconds from the program's start to the first drawing in a window of it; the program is ended then.
    double Of(const std::vector<std::string>& command);

private:
    struct Server;
    std::unique_ptr<Server> server_;
};

} // namespace mirelle::bench
