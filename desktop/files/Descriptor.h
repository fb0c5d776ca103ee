// An open file of the system, closed when its owner goes.
#pragma once

#include "desktop/files/HostErrors.h"

#include <string>

#include <sys/types.h>

namespace mirelle::host {

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { Close(); }
    Descriptor(Descriptor&& other) noexcept : number_(other.number_) { other.number_ = -1; }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }
    // What the system said at closing (some file systems report a full disk only then): 0 or its error.
    int Close();

private:
    int number_;
};

// Opens a regular file, and nothing else, with these flags of open(2), without ever waiting. Raises 75 where
// something else stands there, and what RaiseSystemError makes of a failure.
Descriptor OpenRegularFile(const std::string& path, int flags, mode_t mode, Action action);

} // namespace mirelle::host
