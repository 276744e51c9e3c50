#include "ui/main/ListWindows.h"

#include "ui/main/ImageListMenu.h"

namespace iw::ui {

void InstallListWindows(MainWindow& window) {
    InstallImageListMenu(window);
}

}  // namespace iw::ui
