// Paths of the toolkit as the program writes them.
#pragma once

#include <QDir>
#include <QFile>
#include <QString>

#include <string>

namespace mirelle {

// With the system's own separators; on Windows in UTF-8, elsewhere in the bytes that the system has for the
// name.
inline std::string PathText(const QString& path) {
#ifdef _WIN32
    return QDir::toNativeSeparators(path).toStdString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

} // namespace mirelle
