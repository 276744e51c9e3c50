#include "ui/adapters/FileChooser.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>

#include "services/core/TextCatalog.h"
#include "ui/UiText.h"

namespace iw::ui {
namespace {

const TextId kOpenFilter{"OpenFileFilter", "Constants",
                         "All Supported Files (*.ico, *.cur, *.ani)|*.ico;*.cur;*.ani|Icon Files "
                         "(*.ico)|*.ico|Cursor Files (*.cur)|*.cur|Animated Cursor Files "
                         "(*.ani)|*.ani|All Files (*.*)|*"};
const TextId kCursorFilter{"SaveCursorFilter", "Constants", "Cursor Files (*.cur)|*.cur"};
const TextId kAniFilter{"SaveANIFilter", "Constants", "Animated Cursor Files (*.ani)|*.ani"};
const TextId kOpenTitle{"OpenTitle", "frmMain", "Open"};
const TextId kSaveTitle{"SaveAsTitle", "frmMain", "Save As"};

struct ModeFiles {
    const TextId* filter;
    const char* suffix;
};

ModeFiles FilesOf(FileMode mode) {
    switch (mode) {
        case FileMode::CUR:
            return {&kCursorFilter, "cur"};
        case FileMode::ANI:
            return {&kAniFilter, "ani"};
        case FileMode::ICO:
            break;
    }
    return {&texts::OpenIconFilter, "ico"};
}

}  // namespace

QStringList QtNameFilters(const QString& filter) {
    static const QRegularExpression kTrailingPatterns(QStringLiteral("\\s*\\([^)]*\\)\\s*$"));
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString name = parts[i];
        name.remove(kTrailingPatterns);
        QString patterns = parts[i + 1];
        patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
        filters << name + QStringLiteral(" (") + patterns + QLatin1Char(')');
    }
    return filters;
}

std::optional<std::string> DialogFileChooser::ChooseOpenPath() {
    QFileDialog dialog(parent_, Tr(kOpenTitle), folder_.isEmpty() ? QDir::homePath() : folder_);
    dialog.setObjectName(QStringLiteral("dlgOpen"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(QtNameFilters(Tr(kOpenFilter)));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    folder_ = dialog.directory().absolutePath();
    return StdStr(dialog.selectedFiles().front());
}

std::optional<std::string> DialogFileChooser::ChooseSavePath(FileMode mode,
                                                             const std::string& suggestedPath) {
    const ModeFiles files = FilesOf(mode);
    QFileInfo suggested(QStr(suggestedPath));
    QString folder = folder_.isEmpty() ? QDir::homePath() : folder_;
    if (suggested.isAbsolute()) folder = suggested.absolutePath();
    QFileDialog dialog(parent_, Tr(kSaveTitle), folder);
    dialog.setObjectName(QStringLiteral("dlgSave"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters(QtNameFilters(Tr(*files.filter)));
    dialog.setDefaultSuffix(QString::fromLatin1(files.suffix));
    dialog.selectFile(suggested.completeBaseName() + QLatin1Char('.') +
                      QString::fromLatin1(files.suffix));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    folder_ = dialog.directory().absolutePath();
    return StdStr(dialog.selectedFiles().front());
}

}  // namespace iw::ui
