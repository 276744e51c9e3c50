#pragma once
// The windows around the set's images: the image commands with frmAttributes and the
// group picker frmGroups for programs and libraries.

namespace iw::ui {

class MainWindow;

void InstallListWindows(MainWindow& window);

}  // namespace iw::ui
