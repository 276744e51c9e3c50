#pragma once
// The commands of the colour and picture windows: View > Preview (frmPreview), File >
// Import and Export (Import Image, Export Image, Export All Images) and Tools > Convert an
// Image (the conversion wizard).

namespace iw::ui {

class MainWindow;

void InstallPictureCommands(MainWindow& window);

}  // namespace iw::ui
