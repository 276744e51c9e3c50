#include "ui/desktop/DesktopMenu.h"

#include <QAction>
#include <QMenu>

#include "ui/desktop/DesktopWindowTexts.h"
#include "ui/desktop/FileTypeDialog.h"
#include "ui/desktop/ProgramAssociations.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainWindow.h"

namespace iw::ui {
namespace {

namespace dt = desktop_texts;

}  // namespace

void InstallDesktopMenu(MainWindow& window) {
    MainActions& actions = *window.Actions();
    Editor& editor = window.GetEditor();
    actions.AddCommand(MenuId::Tools, "mnuFileTypes", dt::MenuFileTypes, [&window, &editor] {
        const std::unique_ptr<IFileAssociations> associations = ProgramAssociations();
        FileTypeDialog dialog(editor, *associations, &window);
        dialog.exec();
    });
}

}  // namespace iw::ui
