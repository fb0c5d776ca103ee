#include "desktop/look/FontsAhead.h"

#ifdef MIRELLE_FONTCONFIG
#include <clocale>

#include <fontconfig/fontconfig.h>
#endif

namespace mirelle::look {

std::future<void> ReadFontsAhead() {
#ifdef MIRELLE_FONTCONFIG
    // The application takes the user's locale when it is made. Taken before, it does not change under the
    // reader, whose numbers have the locale's decimal point.
    std::setlocale(LC_ALL, "");
    // This is the one list that the process has: the toolkit asks for it by the same call and finds it there.
    return std::async([] { FcInit(); });
#else
    return std::async(std::launch::deferred, [] {});
#endif
}

} // namespace mirelle::look
