#pragma once
// When a program or library with more than one group (or one group in several languages)
// has been opened whole, frmGroups offers them: the one chosen replaces the first group in
// this window, or every further one opens in a main window of its own.

namespace iw::ui {

class MainWindow;

void InstallProgramGroups(MainWindow& window);

}  // namespace iw::ui
