#pragma once
// Tools > Options (frmOptions) and File > New from Template.

namespace iw::ui {

class MainWindow;

void InstallOptionsMenu(MainWindow& window);

}  // namespace iw::ui
