#include "ui/desktop/ProgramAssociations.h"

#include <QCoreApplication>

#include "services/desktop/AssociationCheck.h"

namespace iw::ui {

std::unique_ptr<IFileAssociations> ProgramAssociations() {
    const std::filesystem::path program(QCoreApplication::applicationFilePath().toStdU16String());
    return MakeSystemAssociations(program);
}

void CheckAssociationsAtStartup(Editor& editor, IFileAssociations& associations) {
    ProgramSettings& settings = editor.Settings();
    CheckFileAssociations(associations, settings.Store(), settings.Messages());
}

}  // namespace iw::ui
