#include "ui/main/WindowFeatures.h"

namespace iw::ui {

// One line per window, in the order their commands should appear in shared menus.
void InstallWindowFeatures(MainWindow& /*window*/) {}

}  // namespace iw::ui
