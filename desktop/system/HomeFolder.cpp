#include "desktop/system/HomeFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace mirelle {

std::string HomeFolder(const QStringList& arguments) {
    const qsizetype option = arguments.indexOf("--home");
    const QString folder = option >= 0 && option + 1 < arguments.size()
                               ? arguments[option + 1]
                               : QCoreApplication::applicationDirPath();
    return QFile::encodeName(QDir(folder).absolutePath()).toStdString();
}

} // namespace mirelle
