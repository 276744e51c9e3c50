#pragma once
// The windows around the set's images: the image commands with frmAttributes.

namespace iw::ui {

class MainWindow;

void InstallListWindows(MainWindow& window);

}  // namespace iw::ui
