#pragma once
// The Image menu: the adjustments and resize windows and the image operations, each on the
// floating selection when there is one, else on the whole image.

namespace iw::ui {

class MainWindow;

void InstallImageMenu(MainWindow& window);

}  // namespace iw::ui
