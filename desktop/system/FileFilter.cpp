#include "desktop/system/FileFilter.h"

#include <QString>

namespace mirelle {

QStringList NameFilters(std::string_view filter) {
    const QStringList pieces =
        QString::fromUtf8(filter.data(), static_cast<qsizetype>(filter.size())).split('|');
    QStringList filters;
    for (qsizetype piece = 0; piece + 1 < pieces.size(); piece += 2) {
        // The name's own brackets would be read as patterns; only the last pair counts to the dialog.
        QString name = pieces[piece];
        const qsizetype bracket = name.indexOf('(');
        if (bracket > 0) name = name.left(bracket);
        filters.append(name.trimmed() + " (" + pieces[piece + 1].split(';').join(' ') + ")");
    }
    return filters;
}

} // namespace mirelle
