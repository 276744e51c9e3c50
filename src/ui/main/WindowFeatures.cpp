#include "ui/main/WindowFeatures.h"

#include "ui/main/ListWindows.h"

namespace iw::ui {

// One line per window, in the order their commands should appear in shared menus.
void InstallWindowFeatures(MainWindow& window) {
    InstallListWindows(window);
}

}  // namespace iw::ui
