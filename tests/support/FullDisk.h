// A disk that is soon full, with or without a user's right to mount one.
#pragma once

#include <csignal>
#include <cstddef>
#include <ostream>
#include <string>

#include <sys/mount.h>
#include <sys/resource.h>

namespace mirelle::test {

enum class FullBy {
    Mount, // a small disk of its own, which only root can mount, and not everywhere
    Limit, // no file may grow beyond the size, which every user can ask for
};

inline const char* NameOf(FullBy way) {
    return way == FullBy::Mount ? "Mount" : "Limit";
}

inline void PrintTo(FullBy way, std::ostream* out) {
    *out << NameOf(way);
}

// While it lives, what is written into the folder finds no more room than kSize. Where it is mounted, the
// folder is empty at first, and shows again afterwards what it held.
class FullDisk {
public:
    static constexpr std::size_t kSize = std::size_t{64} << 10;

    FullDisk(std::string folder, FullBy way) : folder_(std::move(folder)), way_(way) {
        if (way_ == FullBy::Mount) {
            isFull_ = ::mount("none", folder_.c_str(), "tmpfs", 0, "size=64k,mode=755") == 0;
        } else if (::getrlimit(RLIMIT_FSIZE, &before_) == 0) {
            // Without the signal the write itself tells.
            beforeSignal_ = std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{kSize, before_.rlim_max};
            isFull_ = ::setrlimit(RLIMIT_FSIZE, &limit) == 0;
        }
    }
    ~FullDisk() {
        if (way_ == FullBy::Mount) {
            if (isFull_) ::umount2(folder_.c_str(), MNT_DETACH);
        } else if (isFull_) {
            ::setrlimit(RLIMIT_FSIZE, &before_);
            std::signal(SIGXFSZ, beforeSignal_);
        }
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

    // Whether it came about. Where a mount is refused, the limit stands in for it; where the limit is refused
    // too, nothing has been tried.
    bool IsThere() const { return isFull_; }

private:
    std::string folder_;
    FullBy way_;
    rlimit before_{};
    void (*beforeSignal_)(int) = SIG_DFL;
    bool isFull_ = false;
};

} // namespace mirelle::test
