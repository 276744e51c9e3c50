// iconwright-cli associate [--check] [ico] [cur] [ani]

#include <algorithm>
#include <iostream>

#include "Commands.h"
#include "platform/ExecutableFolder.h"
#include "services/desktop/FileAssociations.h"

namespace iw::cli {
namespace {

constexpr int kExitNotDefault = 3;

constexpr std::string_view kUsage = "iconwright-cli associate [--check] [ico] [cur] [ani]";
constexpr std::string_view kHelp =
    "Makes Iconwright the default editor of icons (ico), cursors (cur) and animated cursors\n"
    "(ani) for the current user: all three when none is named. On Linux the desktop entry\n"
    "com.quorvale.Iconwright.desktop becomes the default of the type's MIME type in\n"
    "$XDG_CONFIG_HOME/mimeapps.list (a program run from outside an installation first gets a\n"
    "desktop entry of its own in $XDG_DATA_HOME/applications); on Windows the file classes are\n"
    "written under HKEY_CURRENT_USER\\Software\\Classes.\n"
    "\n"
    "  --check   change nothing; print each type's state\n"
    "\n"
    "Exit status: 0 done (with --check: Iconwright is the default of every type named),\n"
    "1 something could not be written, 2 usage error, 3 (with --check) Iconwright is not the\n"
    "default of some type.\n";

}  // namespace

int RunAssociate(const Args& args) {
    bool check = false;
    std::vector<const FileType*> types;
    for (const std::string& arg : args) {
        if (IsHelpFlag(arg)) {
            std::cout << "usage: " << kUsage << "\n\n" << kHelp;
            return kExitOk;
        }
        if (arg == "--check") {
            check = true;
            continue;
        }
        const FileType* type = FindFileType(arg);
        if (!type) return UsageError("unknown file type " + arg + " (ico, cur or ani)", kUsage);
        if (std::find(types.begin(), types.end(), type) == types.end()) types.push_back(type);
    }
    if (types.empty()) {
        for (const FileType& type : FileTypes())
            types.push_back(&type);
    }

    // Files open in the editor, which lies beside this program.
    const std::filesystem::path program = platform::ExecutableFolder() / "iconwright";
    std::error_code ec;
    if (!check && !std::filesystem::exists(program, ec)) {
        std::cerr << "iconwright-cli: note: " << program.string()
                  << " is not there (yet); files will open in it once it is\n";
    }
    const std::unique_ptr<IFileAssociations> associations = MakeSystemAssociations(program);
    int status = kExitOk;
    for (const FileType* type : types) {
        if (check) {
            const bool isDefault = associations->IsDefault(*type);
            std::cout << type->word << ": " << (isDefault ? "default" : "not default") << "\n";
            if (!isDefault) status = kExitNotDefault;
        } else if (associations->Register(*type)) {
            std::cout << type->word << ": registered\n";
        } else {
            std::cerr << "iconwright-cli: " << type->word << ": could not be registered\n";
            status = kExitFailed;
        }
    }
    return status;
}

}  // namespace iw::cli
