#include "ui/main/WindowFeatures.h"

#include "ui/main/PictureCommands.h"
#include "ui/main/OptionsMenu.h"
#include "ui/main/EditFeatures.h"

namespace iw::ui {

// One line per window, in the order their commands should appear in shared menus.
void InstallWindowFeatures(MainWindow& window) {
    InstallPictureCommands(window);
    InstallOptionsMenu(window);
    InstallEditFeatures(window);
}

}  // namespace iw::ui
