#include "ui/main/OptionsMenu.h"

#include <QAction>
#include <QMenu>

#include "ui/UiText.h"
#include "ui/dialogs/OptionsDialog.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainTexts.h"
#include "ui/main/MainWindow.h"

namespace iw::ui {
namespace {

inline constexpr TextId Options = main_texts::T("mnuOptions", "&Options...");
inline constexpr TextId NewFromTemplate = main_texts::T("mnuNewTemplate", "New from &Template");

// The submenu lists the templates as they are when it opens, so a template saved or deleted
// in the options window is there (or gone) at once. Each item is "mnuTemplate" with its
// template's name as its tag; choosing one asks to save first, as New does.
void FillTemplateMenu(QMenu& menu, Editor& editor) {
    menu.clear();
    for (const IconTemplate& entry : editor.Settings().Templates().Templates()) {
        QString text = QStr(entry.name);
        text.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction* action =
            menu.addAction(text + QStringLiteral("\t(%1)").arg(QStr(entry.EntryCountText())));
        action->setObjectName(QStringLiteral("mnuTemplate"));
        action->setProperty("tag", QStr(entry.name));
        action->setToolTip(QStr(entry.path));
        const std::string name = entry.name;
        QObject::connect(action, &QAction::triggered, &menu, [&editor, name] {
            // Found again by name: the list may have been read again since the menu opened.
            if (const IconTemplate* chosen = editor.Settings().Templates().Find(name))
                editor.Document().NewFromTemplate(*chosen);
        });
    }
}

}  // namespace

void InstallOptionsMenu(MainWindow& window) {
    Editor& editor = window.GetEditor();
    MainActions& actions = *window.Actions();

    QMenu* file = actions.MenuFor(MenuId::File);
    auto* templates = new QMenu(Tr(NewFromTemplate), file);
    templates->setObjectName(QStr(NewFromTemplate.key));
    templates->menuAction()->setObjectName(QStr(NewFromTemplate.key));
    QAction* before = nullptr;
    for (QAction* action : file->actions()) {
        if (action->objectName() == QStringLiteral("mnuOpen")) before = action;
    }
    file->insertMenu(before, templates);
    FillTemplateMenu(*templates, editor);
    QObject::connect(templates, &QMenu::aboutToShow, templates,
                     [templates, &editor] { FillTemplateMenu(*templates, editor); });
    QObject::connect(file, &QMenu::aboutToShow, templates, [templates, &editor] {
        templates->menuAction()->setEnabled(!editor.Settings().Templates().Templates().empty());
    });

    actions.AddCommand(MenuId::Tools, "mnuOptions", Options, [&window, &editor] {
        OptionsDialog options(editor, window, &window);
        options.exec();
    });
}

}  // namespace iw::ui
