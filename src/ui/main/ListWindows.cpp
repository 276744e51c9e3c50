#include "ui/main/ListWindows.h"

#include "ui/main/ImageListMenu.h"
#include "ui/main/ProgramGroups.h"

namespace iw::ui {

void InstallListWindows(MainWindow& window) {
    InstallImageListMenu(window);
    InstallProgramGroups(window);
}

}  // namespace iw::ui
