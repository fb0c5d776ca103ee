#include "desktop/binding/HandlerGuard.h"

#include "forms/ports/Dialogs.h"
#include "forms/RunTimeError.h"

#include <new>

namespace mirelle {
namespace {

constexpr const char* kTitle = "Mirelle";

} // namespace

bool RunGuarded(Dialogs& dialogs, const std::function<void()>& action) {
    try {
        action();
        return true;
    } catch (const RunTimeError& error) {
        dialogs.MsgBox(error.Description(), MessageButtons::Ok, kTitle);
    } catch (const std::bad_alloc&) {
        dialogs.MsgBox(DescriptionOf(ErrorNumber::OutOfMemory), MessageButtons::Ok, kTitle);
    } catch (const std::exception& error) {
        dialogs.MsgBox(error.what(), MessageButtons::Ok, kTitle);
    }
    return false;
}

} // namespace mirelle
