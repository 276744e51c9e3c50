#include "ui/adapters/CommandLineText.h"

#include <QDir>
#include <QFileInfo>

namespace iw::ui {

QString EditorCommandLine(const QStringList& arguments) {
    QStringList parts;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        QString part = arguments[i];
        if (part.isEmpty()) continue;
        if (part.compare(QStringLiteral("/log"), Qt::CaseInsensitive) != 0) {
            part = QDir::cleanPath(QFileInfo(part).absoluteFilePath());
            if (part.contains(QLatin1Char(' '))) part = QLatin1Char('"') + part + QLatin1Char('"');
        }
        parts << part;
    }
    return parts.join(QLatin1Char(' '));
}

}  // namespace iw::ui
