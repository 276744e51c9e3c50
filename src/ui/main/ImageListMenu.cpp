#include "ui/main/ImageListMenu.h"

#include <QAction>
#include <QMenu>
#include <array>
#include <functional>
#include <vector>

#include "ui/UiText.h"
#include "ui/dialogs/AttributesDialog.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainTexts.h"
#include "ui/main/MainWindow.h"
#include "ui/widgets/IconListView.h"

namespace iw::ui {
namespace {

namespace mt = main_texts;

inline constexpr TextId kAddFormat = mt::T("mnuAddFormat", "&Add Format...");
inline constexpr TextId kRemoveIcon{"RemoveIcon", "Constants", "Remove Icon"};
inline constexpr TextId kAttributes = mt::T("mnuAttributes", "Change A&ttributes...");
inline constexpr TextId kMoveUp = mt::T("mnuMoveUp", "Move &Up");
inline constexpr TextId kMoveDown = mt::T("mnuMoveDown", "Move &Down");

// Add Format starts from the attributes of the image the menu was opened on.
void AddFormat(MainWindow& window, int image) {
    ImageListCommands& images = window.GetEditor().Images();
    AttributesDialog dialog(images, AttributesDialog::Purpose::AddFormat,
                            images.Attributes(image).value_or(ImageAttributes{}), &window);
    if (dialog.exec() == QDialog::Accepted) images.AddFormat(dialog.Chosen());
}

void ChangeAttributes(MainWindow& window, int image) {
    ImageListCommands& images = window.GetEditor().Images();
    const std::optional<ImageAttributes> now = images.Attributes(image);
    if (!now) return;
    AttributesDialog dialog(images, AttributesDialog::Purpose::ChangeAttributes, *now, &window);
    if (dialog.exec() == QDialog::Accepted) images.ChangeAttributes(image, dialog.Chosen());
}

// One command of both menus: what it does to an image and whether it is offered for it.
struct ImageCommand {
    const char* name;
    const TextId& text;
    std::function<void(MainWindow&, int)> run;
    std::function<bool(const ImageListCommands&, int)> offered;
};

const std::array<ImageCommand, 5>& Commands() {
    static const std::array<ImageCommand, 5> commands = {{
        {"mnuAddFormat", kAddFormat, AddFormat, [](const ImageListCommands&, int) { return true; }},
        {"mnuRemoveIcon", kRemoveIcon,
         [](MainWindow& w, int i) { w.GetEditor().Images().Remove(i); },
         [](const ImageListCommands& c, int i) { return i >= 0 && c.CanRemove(); }},
        {"mnuAttributes", kAttributes, ChangeAttributes,
         [](const ImageListCommands& c, int i) { return c.Attributes(i).has_value(); }},
        {"mnuMoveUp", kMoveUp, [](MainWindow& w, int i) { w.GetEditor().Images().MoveUp(i); },
         [](const ImageListCommands& c, int i) { return c.CanMoveUp(i); }},
        {"mnuMoveDown", kMoveDown, [](MainWindow& w, int i) { w.GetEditor().Images().MoveDown(i); },
         [](const ImageListCommands& c, int i) { return c.CanMoveDown(i); }},
    }};
    return commands;
}

// The icon list's menu for `image` (-1: the empty part of the list, where only Add Format
// is offered, from the image being edited).
void ShowListMenu(MainWindow& window, int image, const QPoint& position) {
    QMenu menu(&window);
    menu.setObjectName(QStringLiteral("mnuIconList"));
    const int target = image >= 0 ? image : window.GetEditor().CurrentIcon();
    const auto& commands = Commands();
    for (std::size_t i = 0; i < commands.size(); ++i) {
        if (image < 0 && i > 0) break;  // Add Format comes first
        const ImageCommand& command = commands[i];
        QAction* action = menu.addAction(Tr(command.text));
        action->setObjectName(QString::fromLatin1(command.name));
        action->setEnabled(command.offered(window.GetEditor().Images(), target));
        QObject::connect(action, &QAction::triggered, &window,
                         [&window, &command, target] { command.run(window, target); });
        if (image >= 0 && (i == 0 || i == 2)) menu.addSeparator();  // then removing, order
    }
    menu.exec(position);
}

}  // namespace

void InstallImageListMenu(MainWindow& window) {
    MainActions& actions = *window.Actions();
    QMenu* mode = actions.MenuFor(MenuId::Mode);
    mode->addSeparator();
    std::vector<std::pair<QAction*, const ImageCommand*>> items;
    for (const ImageCommand& command : Commands()) {
        QAction* action = actions.AddCommand(
            MenuId::Mode, command.name, command.text,
            [&window, &command] { command.run(window, window.GetEditor().CurrentIcon()); });
        items.emplace_back(action, &command);
    }
    // Offered for the image being edited, as the menu opens.
    QObject::connect(mode, &QMenu::aboutToShow, &window, [&window, items] {
        const Editor& editor = window.GetEditor();
        for (const auto& [action, command] : items)
            action->setEnabled(command->offered(editor.Images(), editor.CurrentIcon()));
    });
    QObject::connect(
        window.IconList(), &IconListView::ImageMenuRequested, &window,
        [&window](int image, const QPoint& position) { ShowListMenu(window, image, position); });
}

}  // namespace iw::ui
