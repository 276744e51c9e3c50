#include "ui/main/WindowFeatures.h"

#include "ui/image/ImageMenu.h"

namespace iw::ui {

// One line per window, in the order their commands should appear in shared menus.
void InstallWindowFeatures(MainWindow& window) {
    InstallImageMenu(window);
}

}  // namespace iw::ui
