#include "ui/animation/AnimationMenu.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <vector>

#include "ui/UiText.h"
#include "ui/animation/AnimationPreviewDialog.h"
#include "ui/animation/AnimationTexts.h"
#include "ui/animation/PropertiesDialog.h"
#include "ui/animation/SequenceDialog.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainWindow.h"

namespace iw::ui {
namespace {

namespace at = animation_texts;

// Shows the commands while the set is an animated cursor. It lives as long as the window;
// the editor goes first and takes its list of observers with it.
class AnimationCommandsShown final : public QObject, public IEditorObserver {
  public:
    AnimationCommandsShown(MainWindow& window, std::vector<QAction*> actions)
        : QObject(&window), editor_(window.GetEditor()), actions_(std::move(actions)) {
        editor_.AddObserver(*this);
        Refresh();
    }
    void ModeChanged() override { Refresh(); }
    void SetChanged() override { Refresh(); }

  private:
    void Refresh() {
        const bool offered = editor_.Animation().Offered();
        for (QAction* action : actions_)
            action->setVisible(offered);
    }
    Editor& editor_;
    std::vector<QAction*> actions_;
};

// Opens a window over the main window that deletes itself when closed.
template <typename Dialog>
void OpenWindow(MainWindow& window) {
    if (!window.GetEditor().Animation().Offered()) return;
    auto* dialog = new Dialog(window.GetEditor(), &window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

// Puts a command of the File menu right after Save As, beside the other commands on the file.
void MoveAfterSaveAs(QMenu* file, QAction* action) {
    const QList<QAction*> actions = file->actions();
    for (qsizetype i = 0; i + 1 < actions.size(); ++i) {
        if (actions[i]->objectName() != QLatin1String("mnuSaveAs")) continue;
        file->removeAction(action);
        file->insertAction(actions[i + 1], action);
        return;
    }
}

}  // namespace

void InstallAnimationMenu(MainWindow& window) {
    MainActions& actions = *window.Actions();
    QMenu* mode = actions.MenuFor(MenuId::Mode);
    QAction* separator = mode->addSeparator();
    QAction* sequence = actions.AddCommand(MenuId::Mode, "mnuSequenceEditor", at::SequenceEditor,
                                           [&window] { OpenWindow<SequenceDialog>(window); });

    // The sequence editor is on the main tool bar as well.
    auto* button = new QAction(UiIcon("sequence"), Tr(at::SequenceEditorTip), &window);
    button->setObjectName(QStringLiteral("tbrSequenceEditor"));
    button->setToolTip(Tr(at::SequenceEditorTip));
    QObject::connect(button, &QAction::triggered, sequence, &QAction::trigger);
    QToolBar* toolBar = actions.MainToolBar();
    QAction* toolSeparator = toolBar->addSeparator();
    toolBar->addAction(button);

    QAction* preview = actions.AddCommand(MenuId::Mode, "mnuPreviewANI", at::PreviewANI, [&window] {
        OpenWindow<AnimationPreviewDialog>(window);
    });
    QAction* properties = actions.AddCommand(MenuId::File, "mnuProperties", at::Properties,
                                             [&window] { OpenWindow<PropertiesDialog>(window); });
    MoveAfterSaveAs(actions.MenuFor(MenuId::File), properties);

    new AnimationCommandsShown(window,
                               {separator, sequence, preview, toolSeparator, button, properties});
}

}  // namespace iw::ui
