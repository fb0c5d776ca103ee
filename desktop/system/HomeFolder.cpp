#include "desktop/system/HomeFolder.h"

#include "desktop/system/PathText.h"

#include <QCoreApplication>
#include <QDir>

namespace mirelle {

std::string HomeFolder(const QStringList& arguments) {
    const qsizetype option = arguments.indexOf("--home");
    const QString folder = option >= 0 && option + 1 < arguments.size()
                               ? arguments[option + 1]
                               : QCoreApplication::applicationDirPath();
    return PathText(QDir(folder).absolutePath());
}

} // namespace mirelle
