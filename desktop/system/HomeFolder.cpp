#include "desktop/system/HomeFolder.h"

#include "desktop/system/PathText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace mirelle {
namespace {

QString ProgramFolder(const QString& program) {
    const QFileInfo started(program);
    if (program.contains('/') && started.isSymLink()) return started.absolutePath();
    return QCoreApplication::applicationDirPath();
}

} // namespace

std::string HomeFolder(const QStringList& arguments) {
    const qsizetype option = arguments.indexOf("--home");
    const QString folder = option >= 0 && option + 1 < arguments.size() ? arguments[option + 1]
                                                                        : ProgramFolder(arguments.value(0));
    return PathText(QDir(folder).absolutePath());
}

} // namespace mirelle
