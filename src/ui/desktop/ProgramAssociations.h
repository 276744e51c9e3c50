#pragma once
// The file associations of this program on the desktop it runs on, and the check start-up
// runs with them.

#include <memory>

#include "editor/Editor.h"
#include "services/desktop/FileAssociations.h"

namespace iw::ui {

// The desktop's associations for this executable (files open in it).
std::unique_ptr<IFileAssociations> ProgramAssociations();

// After start-up: for each file type whose check is on, asks to make the program the
// default editor again when it no longer is ("ICOFileType", "CURFileType", "ANIFileType").
void CheckAssociationsAtStartup(Editor& editor, IFileAssociations& associations);

}  // namespace iw::ui
