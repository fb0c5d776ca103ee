// The two ways in which files are written: in the place of another, and over another's start.

#include "desktop/files/Descriptor.h"
#include "desktop/files/HostErrors.h"
#include "desktop/files/HostFiles.h"
#include "forms/RunTimeError.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace mirelle::host {
namespace {

constexpr mode_t kPrivateMode = S_IRUSR | S_IWUSR;
constexpr mode_t kOrdinaryMode = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
constexpr int kNameTries = 100;

mode_t ModeOfNewFiles() {
    const mode_t mask = ::umask(S_IRWXG | S_IRWXO);
    ::umask(mask);
    return kOrdinaryMode & ~mask;
}

// A file that goes again unless it is kept.
class FileOnProbation {
public:
    explicit FileOnProbation(std::string path) : path_(std::move(path)) {}
    ~FileOnProbation() {
        if (!path_.empty()) ::unlink(path_.c_str());
    }
    FileOnProbation(const FileOnProbation&) = delete;
    FileOnProbation& operator=(const FileOnProbation&) = delete;

    const std::string& Path() const { return path_; }
    void Keep() { path_.clear(); }

private:
    std::string path_;
};

// A new private file in the target's folder. Its name is short, so that there is room for it wherever the
// target's own name has room, and begins with a point, so that no file list shows it.
Descriptor OpenBeside(const std::string& target, std::string& path) {
    const std::size_t separator = target.rfind('/');
    const std::string folder = separator == std::string::npos ? "" : target.substr(0, separator + 1);
    std::random_device random;
    for (int attempt = 0; attempt < kNameTries; ++attempt) {
        path = folder + ".new" + std::to_string(random());
        Descriptor file{
            ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, kPrivateMode)};
        if (file.IsOpen()) return file;
        if (errno != EEXIST) RaiseSystemError(errno, Action::Write, target);
    }
    throw RunTimeError(ErrorNumber::PathFileAccess);
}

void WriteAll(int descriptor, std::span<const std::uint8_t> bytes, const std::string& path) {
    std::size_t count = 0;
    while (count < bytes.size()) {
        const ssize_t put = ::write(descriptor, bytes.data() + count, bytes.size() - count);
        if (put < 0 && errno == EINTR) continue;
        if (put < 0) RaiseSystemError(errno, Action::Write, path);
        count += static_cast<std::size_t>(put);
    }
}

// A file that stands there already, for writing: this user's own, under no other name, and private from now
// on. What another user has laid ready would hand him what is written.
Descriptor OpenOwnFile(const std::string& path) {
    Descriptor file = OpenRegularFile(path, O_WRONLY | O_NOFOLLOW, 0, Action::Write);
    struct stat found {};
    if (::fstat(file.Number(), &found) != 0) RaiseSystemError(errno, Action::Write, path);
    if (found.st_uid != ::geteuid() || found.st_nlink != 1) throw RunTimeError(ErrorNumber::PathFileAccess);
    if (::fchmod(file.Number(), kPrivateMode) != 0) RaiseSystemError(errno, Action::Write, path);
    return file;
}

// Where a link leads to, so that it is not the link that is replaced. A link to nothing stays itself.
std::string TargetOf(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real{::realpath(path.c_str(), nullptr), &std::free};
    return real ? std::string(real.get()) : path;
}

} // namespace

void ReplaceFile(const std::string& path, std::span<const std::uint8_t> bytes) {
    const std::string target = TargetOf(path);
    mode_t mode = 0;
    struct stat found {};
    if (::stat(target.c_str(), &found) == 0) {
        if (!S_ISREG(found.st_mode)) throw RunTimeError(ErrorNumber::PathFileAccess);
        if (::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0)
            RaiseSystemError(errno, Action::Write, target);
        mode = found.st_mode & 0777;
    } else {
        mode = ModeOfNewFiles();
    }

    std::string temporaryPath;
    Descriptor file = OpenBeside(target, temporaryPath);
    FileOnProbation temporary{temporaryPath};
    WriteAll(file.Number(), bytes, target);
    if (::fchmod(file.Number(), mode) != 0) RaiseSystemError(errno, Action::Write, target);
    if (const int failure = file.Close(); failure != 0) RaiseSystemError(failure, Action::Write, target);
    if (std::rename(temporaryPath.c_str(), target.c_str()) != 0)
        RaiseSystemError(errno, Action::Write, target);
    temporary.Keep();
}

void OverwriteFileStart(const std::string& path, std::span<const std::uint8_t> bytes) {
    struct stat found {};
    if (::stat(path.c_str(), &found) == 0 && !S_ISREG(found.st_mode))
        throw RunTimeError(ErrorNumber::PathFileAccess);

    // Such files lie where everybody may put some: a new one is private, and never made through a link.
    bool isNew = true;
    Descriptor file = [&] {
        Descriptor made{::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kPrivateMode)};
        if (made.IsOpen()) return made;
        if (errno != EEXIST) RaiseSystemError(errno, Action::Write, path);
        isNew = false;
        return OpenOwnFile(path);
    }();
    FileOnProbation probation{isNew ? path : std::string()};
    WriteAll(file.Number(), bytes, path);
    if (const int failure = file.Close(); failure != 0) RaiseSystemError(failure, Action::Write, path);
    probation.Keep();
}

} // namespace mirelle::host
