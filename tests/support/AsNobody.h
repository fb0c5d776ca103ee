// The rights of a user whom no file belongs to.
#pragma once

#include <cstdlib>

#include <unistd.h>

namespace mirelle::test {

// While it lives the test has the rights of a user whom no file belongs to, even where root runs it.
class AsNobody {
public:
    AsNobody() : wasRoot_(::geteuid() == 0) {
        if (wasRoot_ && ::seteuid(kNobody) != 0) std::abort();
    }
    ~AsNobody() {
        if (wasRoot_ && ::seteuid(0) != 0) std::abort();
    }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

private:
    static constexpr uid_t kNobody = 65534;
    bool wasRoot_;
};

} // namespace mirelle::test
