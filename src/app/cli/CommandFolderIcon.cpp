// iconwright-cli folder-icon DIR [ICON [--index N] [--copy] | --remove]

#include <iostream>

#include "Commands.h"
#include "services/core/ParseInteger.h"
#include "services/core/TextCatalog.h"
#include "services/desktop/FolderIcons.h"

namespace iw::cli {
namespace {

constexpr std::string_view kUsage =
    "iconwright-cli folder-icon DIR ICON [--index N] [--copy]\n"
    "       iconwright-cli folder-icon DIR --remove\n"
    "       iconwright-cli folder-icon DIR";
constexpr std::string_view kHelp =
    "Gives the folder DIR the icon ICON (a file Iconwright can read): \"desktop.ini\" in DIR\n"
    "gets [.ShellClassInfo] with IconFile= and IconIndex=, its other lines kept. On Linux DIR's\n"
    "\".directory\" gets Icon= (for KDE's Dolphin) and, where gio is installed, the folder gets\n"
    "the metadata::custom-icon attribute (for GNOME's Nautilus). With DIR alone, prints the\n"
    "folder's icon, or \"[no icon]\".\n"
    "\n"
    "  --index N   the icon's index in its file (default 0)\n"
    "  --copy      copy ICON into DIR as \"folder.ico\" and name that\n"
    "  --remove    take the folder's icon away: the keys above leave the files (a file with\n"
    "              nothing else in it is deleted), a copied \"folder.ico\" is deleted\n"
    "\n"
    "Exit status: 0 done, 1 DIR is not a folder, ICON cannot be read or a file could not be\n"
    "written, 2 usage error.\n";

}  // namespace

int RunFolderIcon(const Args& args) {
    std::vector<std::string> plain;
    FolderIconRequest request;
    bool remove = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (IsHelpFlag(arg)) {
            std::cout << "usage: " << kUsage << "\n\n" << kHelp;
            return kExitOk;
        }
        if (arg == "--copy") {
            request.copy = true;
        } else if (arg == "--remove") {
            remove = true;
        } else if (arg == "--index") {
            const auto index = i + 1 < args.size() ? ParseInteger<int>(args[i + 1]) : std::nullopt;
            if (!index) return UsageError("--index takes a whole number", kUsage);
            request.index = *index;
            ++i;
        } else if (arg.size() > 1 && arg[0] == '-') {
            return UsageError("unknown option " + arg, kUsage);
        } else {
            plain.push_back(arg);
        }
    }
    if (plain.empty() || plain.size() > 2)
        return UsageError("folder-icon takes DIR and ICON", kUsage);
    if (remove && (plain.size() != 1 || request.copy))
        return UsageError("--remove takes DIR alone", kUsage);
    request.folder = plain[0];

    CliContext context;
    FolderIcons icons;
    std::error_code ec;
    if (plain.size() == 1) {
        if (!std::filesystem::is_directory(request.folder, ec)) {
            context.Core().messages.Show(texts::SelectFolderMessage, MessageType::Exclamation);
            return kExitFailed;
        }
        if (!remove) {
            std::cout << icons.CurrentIconText(request.folder) << "\n";
            return kExitOk;
        }
        if (icons.RemoveIcon(request.folder)) return kExitOk;
        std::cerr << "iconwright-cli: " << plain[0] << ": the folder icon could not be removed\n";
        return kExitFailed;
    }
    request.icon = plain[1];
    const FolderIconResult result = icons.SetIcon(request, context.Core().messages);
    if (result.status == FolderIconStatus::WriteFailed) {
        std::cerr << "iconwright-cli: " << plain[0]
                  << ": the folder's files could not be written\n";
    }
    if (result.metadataNotSet) {
        std::cerr << "iconwright-cli: note: gio could not set metadata::custom-icon (GNOME's "
                     "metadata store is not running)\n";
    }
    return result.status == FolderIconStatus::Done ? kExitOk : kExitFailed;
}

}  // namespace iw::cli
