// The hands and eyes of a user before an X display: a real pointer, and the pixels of the screen.
#pragma once

#include <memory>
#include <string>

namespace mirelle::road {

// A rectangle of the screen, in pixels.
struct Place {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    int MiddleX() const { return x + width / 2; }
    int MiddleY() const { return y + height / 2; }
    bool Holds(int left, int top) const {
        return left >= x && left < x + width && top >= y && top < y + height;
    }
};

class Desk {
public:
    // The display that DISPLAY names. Throws where there is none.
    Desk();
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    void MovePointer(int x, int y);
    void PressButton();
    void ReleaseButton();
    void Click(const Place& place);

    // 0xRRGGBB as the screen shows it.
    unsigned ColourAt(int x, int y) const;
    // Writes what the whole screen shows as a PNG file.
    void TakePicture(const std::string& file) const;
    // Moves and sizes the first window of this title; the window manager may have its say.
    void PlaceWindow(const std::string& title, const Place& place);
    // Asks it to close, as the cross in its title bar does.
    void CloseWindow(const std::string& title);

private:
    struct Server;
    std::unique_ptr<Server> server_;
};

} // namespace mirelle::road
