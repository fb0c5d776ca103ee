// Whether Escape went down, in any window.
#pragma once

#include "desktop/x11/Connection.h"
#include "desktop/x11/RawKeys.h"

#include <bitset>
#include <mutex>
#include <thread>

namespace mirelle::x11 {

class EscapeWatch {
public:
    // Takes a connection of its own.
    explicit EscapeWatch(std::unique_ptr<Connection> connection);
    ~EscapeWatch();
    EscapeWatch(const EscapeWatch&) = delete;
    EscapeWatch& operator=(const EscapeWatch&) = delete;

    // Since the last look, or since the start. Counts what the server knew when it was asked.
    bool WentDown();

private:
    void TakeIn();
    void FindEscape();
    void ReadUntilEnd();

    std::unique_ptr<Connection> connection_;
    std::mutex mutex_; // over the connection and what follows
    RawKeys raw_;
    int layoutEvents_ = 0;         // the type of events about the layout
    std::bitset<256> escapeCodes_; // the keys that give Escape
    bool wentDown_ = false;

    // Reads keys as they come, so that none pile up while nobody looks.
    int endPipe_[2] = {-1, -1};
    std::thread reader_;
};

} // namespace mirelle::x11
