#include "ui/main/WindowFeatures.h"

#include "ui/main/PictureCommands.h"

namespace iw::ui {

// One line per window, in the order their commands should appear in shared menus.
void InstallWindowFeatures(MainWindow& window) {
    InstallPictureCommands(window);
}

}  // namespace iw::ui
