#include "ui/main/WindowFeatures.h"

#include "ui/desktop/DesktopMenu.h"

namespace iw::ui {

// One line per window, in the order their commands should appear in shared menus.
void InstallWindowFeatures(MainWindow& window) {
    InstallDesktopMenu(window);
}

}  // namespace iw::ui
