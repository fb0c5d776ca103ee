// Keeps the program on the core that it is on just now, all its threads and those that they start, until the
// end of the scope.
#pragma once

#include <sched.h>

namespace mirelle::bench {

class OneCore {
public:
    OneCore();
    ~OneCore();
    OneCore(const OneCore&) = delete;
    OneCore& operator=(const OneCore&) = delete;

private:
    cpu_set_t before_{};
};

} // namespace mirelle::bench
