#include "ui/adapters/HelpLocation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace iw::ui {

QString HelpPage(const QString& page) {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const QString& folder : {program.filePath(QStringLiteral("help")),
                                  program.filePath(QStringLiteral("../share/iconwright/help"))}) {
        const QFileInfo file(QDir(folder).filePath(page));
        if (file.isFile()) return file.absoluteFilePath();
    }
    return {};
}

}  // namespace iw::ui
