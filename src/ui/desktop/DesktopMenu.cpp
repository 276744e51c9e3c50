#include "ui/desktop/DesktopMenu.h"

#include <QAction>
#include <QMenu>

#include "ui/desktop/DesktopWindowTexts.h"
#include "ui/desktop/FaviconDialog.h"
#include "ui/desktop/FileTypeDialog.h"
#include "ui/desktop/FolderWizard.h"
#include "ui/desktop/ProgramAssociations.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainWindow.h"

namespace iw::ui {
namespace {

namespace dt = desktop_texts;

// The File menu's commands go above the recent files: after Save As and what follows it
// before the next separator.
void MoveAboveRecentFiles(QMenu* file, const std::vector<QAction*>& actions) {
    const QList<QAction*> items = file->actions();
    QAction* before = nullptr;
    bool afterSaveAs = false;
    for (QAction* item : items) {
        if (item->objectName() == QLatin1String("mnuSaveAs")) afterSaveAs = true;
        if (afterSaveAs && item->isSeparator()) {
            before = item;
            break;
        }
    }
    if (!before) return;
    for (QAction* action : actions) {
        file->removeAction(action);
        file->insertAction(before, action);
    }
    file->insertSeparator(actions.front());
}

}  // namespace

void InstallDesktopMenu(MainWindow& window) {
    MainActions& actions = *window.Actions();
    Editor& editor = window.GetEditor();
    QAction* folder =
        actions.AddCommand(MenuId::File, "mnuFolderIcon", dt::MenuFolderIcon, [&window, &editor] {
            FolderIcons folderIcons;
            FolderWizard wizard(editor, folderIcons, &window);
            wizard.exec();
        });
    QAction* favicon =
        actions.AddCommand(MenuId::File, "mnuFavicon", dt::MenuFavicon, [&window, &editor] {
            FaviconDialog dialog(editor, {}, &window);
            dialog.exec();
        });
    QMenu* file = actions.MenuFor(MenuId::File);
    MoveAboveRecentFiles(file, {folder, favicon});
    // The favicon is the icon being edited: with no image there is nothing to save.
    QObject::connect(file, &QMenu::aboutToShow, favicon,
                     [favicon, &editor] { favicon->setEnabled(!editor.Set().Empty()); });
    actions.AddCommand(MenuId::Tools, "mnuFileTypes", dt::MenuFileTypes, [&window, &editor] {
        const std::unique_ptr<IFileAssociations> associations = ProgramAssociations();
        FileTypeDialog dialog(editor, *associations, &window);
        dialog.exec();
    });
}

}  // namespace iw::ui
