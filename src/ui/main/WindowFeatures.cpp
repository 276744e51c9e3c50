#include "ui/main/WindowFeatures.h"

#include "ui/desktop/DesktopMenu.h"
#include "ui/animation/AnimationMenu.h"
#include "ui/image/ImageMenu.h"
#include "ui/main/EditFeatures.h"
#include "ui/main/ListWindows.h"
#include "ui/main/OptionsMenu.h"
#include "ui/main/PictureCommands.h"

namespace iw::ui {

// One line per window, in the order their commands should appear in shared menus.
void InstallWindowFeatures(MainWindow& window) {
    InstallPictureCommands(window);
    InstallOptionsMenu(window);
    InstallEditFeatures(window);
    InstallImageMenu(window);
    InstallListWindows(window);
    InstallDesktopMenu(window);
    InstallAnimationMenu(window);
}

}  // namespace iw::ui
