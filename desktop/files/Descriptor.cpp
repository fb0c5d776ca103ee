#include "desktop/files/Descriptor.h"

#include "forms/RunTimeError.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace mirelle::host {

int Descriptor::Close() {
    const int number = std::exchange(number_, -1);
    if (number < 0 || ::close(number) == 0) return 0;
    // An interrupted close has let go of the descriptor all the same.
    return errno == EINTR ? 0 : errno;
}

Descriptor OpenRegularFile(const std::string& path, int flags, mode_t mode, Action action) {
    Descriptor file{::open(path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, mode)};
    if (!file.IsOpen()) RaiseSystemError(errno, action, path);
    struct stat found {};
    if (::fstat(file.Number(), &found) != 0) RaiseSystemError(errno, action, path);
    if (!S_ISREG(found.st_mode)) throw RunTimeError(ErrorNumber::PathFileAccess);
    return file;
}

} // namespace mirelle::host
