#include "ui/pictures/PictureFiles.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include "services/core/TextCatalog.h"
#include "ui/UiText.h"
#include "ui/adapters/FileChooser.h"
#include "ui/pictures/PictureTexts.h"

namespace iw::ui {

QString DialogPictureFiles::Folder() const {
    return folder_.isEmpty() ? QDir::homePath() : folder_;
}

std::optional<std::string> DialogPictureFiles::ChoosePicture() {
    QFileDialog dialog(parent_, Tr(texts::ImportImage), Folder());
    dialog.setObjectName(QStringLiteral("dlgImport"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(QtNameFilters(Tr(texts::OpenImageFilter)));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    folder_ = dialog.directory().absolutePath();
    return StdStr(dialog.selectedFiles().front());
}

std::optional<std::string> DialogPictureFiles::ChoosePngPath(const std::string& suggestedName) {
    QFileDialog dialog(parent_, Tr(picture_texts::ExportTitle), Folder());
    dialog.setObjectName(QStringLiteral("dlgExport"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // The overwrite question is the program's own ("Overwrite existing file?").
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters(QtNameFilters(Tr(picture_texts::PngFilter)));
    dialog.setDefaultSuffix(QStringLiteral("png"));
    dialog.selectFile(QStr(suggestedName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    folder_ = dialog.directory().absolutePath();
    return StdStr(dialog.selectedFiles().front());
}

std::optional<std::string> DialogPictureFiles::ChooseFolder() {
    const QString folder =
        QFileDialog::getExistingDirectory(parent_, Tr(picture_texts::ExportFolderTitle), Folder());
    if (folder.isEmpty()) return std::nullopt;
    folder_ = folder;
    return StdStr(folder);
}

}  // namespace iw::ui
