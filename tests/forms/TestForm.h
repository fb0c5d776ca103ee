// An empty form for tests to put controls on.
#pragma once

#include "forms/Form.h"
#include "tests/support/ScriptedDesktop.h"

namespace mirelle::test {

struct TestForm {
    ScriptedScreen screen;
    Form form{"TestForm", screen, {200, 100}};
};

} // namespace mirelle::test
