// Runs handlers from the window's events. No exception may pass through Qt: a run-time error that a handler
// lets out is shown in a message box with its description, and the program goes on.
#pragma once

#include <functional>

namespace mirelle {

class Dialogs;

// Returns whether the action ran to its end.
bool RunGuarded(Dialogs& dialogs, const std::function<void()>& action);

} // namespace mirelle
