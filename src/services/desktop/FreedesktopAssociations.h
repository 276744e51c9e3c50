#pragma once
// The file associations of a freedesktop desktop. Registering makes sure the desktop sees a
// desktop entry for the program (the installed one; for a program run from outside an
// installation, such as a build tree, a user entry that runs it by its absolute path) and
// makes that entry the default of the type's MIME type in the user's mimeapps.list. The check
// asks the merged lists which application is the default.

#include <filesystem>
#include <string>
#include <string_view>

#include "services/desktop/FileAssociations.h"
#include "services/desktop/ProgramRunner.h"
#include "services/desktop/XdgDirs.h"

namespace iw {

class FreedesktopAssociations final : public IFileAssociations {
  public:
    // `program`: the absolute path of the editor's executable.
    FreedesktopAssociations(XdgDirs dirs, std::filesystem::path program,
                            ProgramRunner run = SystemProgramRunner());

    // The desktop entry, then "type=<app id>.desktop;..." under [Default Applications] in
    // $XDG_CONFIG_HOME/mimeapps.list (and in the user's lists of the current desktops, where
    // they name a default for the type already). Files are only written when they change.
    bool Register(const FileType& type) override;
    bool IsDefault(const FileType& type) override;

    // Makes sure a desktop entry of the program's id is visible. When the program lies in an
    // installation whose data folder the desktop reads, that entry is used (and a user entry
    // this class wrote earlier for another copy of the program, which would hide it, is
    // removed); otherwise $XDG_DATA_HOME/applications/<app id>.desktop runs this program.
    bool EnsureDesktopEntry();

  private:
    bool InstalledEntryVisible() const;

    XdgDirs dirs_;
    std::filesystem::path program_;
    ProgramRunner run_;
};

// The user entry for a program outside an installation: the installed entry with Exec and
// TryExec naming the program by its path, and a mark that this program wrote it. Empty when
// the path cannot be written in an Exec line (it holds a line break).
std::string UserDesktopEntryText(const std::filesystem::path& program);

// One argument of an Exec line as the desktop entry rules want it: quoted when it holds a
// reserved character (with '"', '`', '$' and '\' escaped inside the quotes), "%" doubled,
// and every backslash doubled again for the string value the line is.
std::string ExecArgument(std::string_view argument);

}  // namespace iw
