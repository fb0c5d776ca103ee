// The picture holders under their names.
#pragma once

#include "forms/PictureBox.h"
#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"
#include "tests/driver/Session.h"

namespace mirelle::driver {

// Does something to a holder of whatever kind: a form, a picture box or an image. Throws UsageError for a
// name that is no holder's.
template <class Action>
auto WithHolder(Session& session, const Reference& reference, Action action) {
    if (Form* form = session.FindForm(reference)) return action(*form);
    Control& control = session.ControlOf(reference);
    if (auto* box = dynamic_cast<PictureBox*>(&control)) return action(*box);
    if (auto* image = dynamic_cast<ImageControl*>(&control)) return action(*image);
    throw UsageError(JsonString(TextOf(reference)) + " holds no picture");
}

} // namespace mirelle::driver
