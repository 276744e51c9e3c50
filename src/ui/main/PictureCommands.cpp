#include "ui/main/PictureCommands.h"

#include <QMenu>
#include <filesystem>

#include "document/io/PictureLoading.h"
#include "document/io/PngExport.h"
#include "services/core/OverwriteQuestion.h"
#include "services/core/TextCatalog.h"
#include "ui/UiText.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainWindow.h"
#include "ui/pictures/ConvertDialog.h"
#include "ui/pictures/PictureTexts.h"
#include "ui/preview/PreviewDialog.h"

namespace iw::ui {
namespace {

namespace pt = picture_texts;

std::string DocumentStem(const Editor& editor) {
    return std::filesystem::path(editor.Document().DocumentName()).stem().string();
}

void ReportExportFailure(Editor& editor, const std::filesystem::path& file) {
    const std::string text = ReplacePlaceholder(GetText(pt::ExportFailed), "%f", file.string());
    editor.Settings().Messages().ShowMessage(pt::ExportFailed.key, text, texts::kProgramTitle,
                                             MessageType::Critical, false);
}

}  // namespace

PictureCommands::PictureCommands(MainWindow& window)
    : QObject(&window),
      window_(window),
      ownFiles_(std::make_unique<DialogPictureFiles>(&window)),
      files_(ownFiles_.get()) {
    setObjectName(QStringLiteral("PictureCommands"));
}

PictureCommands::~PictureCommands() = default;

void PictureCommands::SetFiles(IPictureFiles* files) {
    files_ = files ? files : ownFiles_.get();
}

void PictureCommands::ShowPreview() {
    Editor& editor = window_.GetEditor();
    PreviewDialog dialog(editor.Set(), QStr(editor.Document().DocumentName()),
                         QStr(editor.Document().Caption()), &window_);
    dialog.exec();
}

bool PictureCommands::ImportImage() {
    Editor& editor = window_.GetEditor();
    if (!editor.HasImage()) return false;
    const std::optional<std::string> path = files_->ChoosePicture();
    if (!path) return false;
    PictureLoadOptions options;
    options.decoder = &decoder_;
    RgbaBuffer picture;
    if (LoadPictureFile(*path, options, editor.Settings().Messages(), picture) !=
        PictureLoadStatus::Ok) {
        return false;
    }
    return editor.Edit().ImportPicture(picture, editor.Progress());
}

bool PictureCommands::ExportImage() {
    Editor& editor = window_.GetEditor();
    if (!editor.HasImage()) return false;
    const IconImage& image = editor.CurrentImage();
    const std::string suggested = DocumentStem(editor) + "-" + std::to_string(image.info.Width()) +
                                  "x" + std::to_string(image.info.Height()) + ".png";
    const std::optional<std::string> path = files_->ChoosePngPath(suggested);
    if (!path) return false;
    MessageService& messages = editor.Settings().Messages();
    if (!ConfirmOverwrite(messages, *path)) return false;
    if (ExportImagePng(image, *path, true)) return true;
    ReportExportFailure(editor, *path);
    return false;
}

bool PictureCommands::ExportAllImages() {
    Editor& editor = window_.GetEditor();
    if (!editor.HasImage()) return false;
    const std::optional<std::string> folder = files_->ChooseFolder();
    if (!folder) return false;
    const ExportResult result = ExportImagesPng(editor.Set(), *folder, DocumentStem(editor) + "-");
    if (!result.Ok()) ReportExportFailure(editor, result.failed);
    return result.Ok();
}

bool PictureCommands::ConvertImage() {
    Editor& editor = window_.GetEditor();
    ConvertDialog dialog(
        editor.Settings().Templates(), editor.Settings().Messages(), decoder_,
        [this] { return files_->ChoosePicture(); }, &window_);
    if (dialog.exec() != QDialog::Accepted || !dialog.ChosenTemplate()) return false;
    return editor.Document().NewFromPicture(dialog.Picture(), *dialog.ChosenTemplate(),
                                            editor.Progress());
}

void InstallPictureCommands(MainWindow& window) {
    auto* commands = new PictureCommands(window);
    MainActions& actions = *window.Actions();
    Editor& editor = window.GetEditor();

    // File > Import and Export, after Save As.
    QMenu* file = actions.MenuFor(MenuId::File);
    auto* importExport = new QMenu(Tr(pt::ImportExport), file);
    importExport->setObjectName(QStr(pt::ImportExport.key));
    const auto add = [&](const char* name, const TextId& text, auto command) {
        auto* action = new QAction(Tr(text), &window);
        action->setObjectName(QLatin1String(name));
        QObject::connect(action, &QAction::triggered, commands,
                         [commands, command] { (commands->*command)(); });
        importExport->addAction(action);
        return action;
    };
    QAction* importImage = add("mnuImportImage", pt::ImportImage, &PictureCommands::ImportImage);
    importExport->addSeparator();
    QAction* exportImage = add("mnuExportImage", pt::ExportImage, &PictureCommands::ExportImage);
    QAction* exportAll = add("mnuExportAll", pt::ExportAll, &PictureCommands::ExportAllImages);
    QObject::connect(importExport, &QMenu::aboutToShow, commands,
                     [&editor, importImage, exportImage, exportAll] {
                         for (QAction* action : {importImage, exportImage, exportAll})
                             action->setEnabled(editor.HasImage());
                     });
    QAction* before = nullptr;
    const QList<QAction*> items = file->actions();
    for (qsizetype i = 0; i + 1 < items.size(); ++i) {
        if (items[i]->objectName() == QLatin1String("mnuSaveAs")) before = items[i + 1];
    }
    file->insertSeparator(before);
    file->insertMenu(before, importExport);

    actions.AddCommand(MenuId::Tools, "mnuConvert", pt::Convert,
                       [commands] { commands->ConvertImage(); });

    actions.MenuFor(MenuId::View)->addSeparator();
    actions.AddCommand(MenuId::View, "mnuPreview", pt::Preview,
                       [commands] { commands->ShowPreview(); });
}

}  // namespace iw::ui
