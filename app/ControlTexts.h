// Captions and tool tips of all controls, as one table.
#pragma once

#include <span>

namespace mirelle {

struct ControlText {
    const char* name;
    int index; // -1 for a control that is in no array
    const char* caption;
    const char* toolTip;
};

std::span<const ControlText> ControlTexts();

} // namespace mirelle
