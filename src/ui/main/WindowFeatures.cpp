#include "ui/main/WindowFeatures.h"

#include "ui/animation/AnimationMenu.h"

namespace iw::ui {

// One line per window, in the order their commands should appear in shared menus.
void InstallWindowFeatures(MainWindow& window) {
    InstallAnimationMenu(window);
}

}  // namespace iw::ui
