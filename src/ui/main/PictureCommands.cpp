#include "ui/main/PictureCommands.h"

#include <QMenu>

#include "ui/UiText.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainWindow.h"
#include "ui/preview/PreviewDialog.h"

namespace iw::ui {
namespace {

constexpr std::string_view kMain = "frmMain";
const TextId kPreview{"mnuPreview", kMain, "&Preview..."};

void ShowPreview(MainWindow& window) {
    Editor& editor = window.GetEditor();
    PreviewDialog dialog(editor.Set(), QStr(editor.Document().DocumentName()),
                         QStr(editor.Document().Caption()), &window);
    dialog.exec();
}

}  // namespace

void InstallPictureCommands(MainWindow& window) {
    MainActions& actions = *window.Actions();
    actions.MenuFor(MenuId::View)->addSeparator();
    actions.AddCommand(MenuId::View, "mnuPreview", kPreview, [&window] { ShowPreview(window); });
}

}  // namespace iw::ui
