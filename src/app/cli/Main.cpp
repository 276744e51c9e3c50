// iconwright-cli: the icon core for scripts and the command line.

#include <iostream>
#include <string>

#include "Commands.h"

namespace {

constexpr const char* kUsage =
    "usage: iconwright-cli COMMAND [ARGS]\n"
    "\n"
    "commands:\n"
    "  info [--json] FILE        list the images of an icon, cursor or animated cursor, or\n"
    "                            the icon and cursor groups of a program (.exe, .dll, ...)\n"
    "  extract FILE DIR          write every image as DIR/<index>.png (a program's groups\n"
    "                            as DIR/<group>/<index>.png)\n"
    "  convert IN OUT            convert between .ico, .cur, .ani (and .png to .png), a\n"
    "                            picture to an icon (--template NAME for a whole set), or a\n"
    "                            program's icon or cursor group (--group NAME)\n"
    "  pack OUT IN.png[:BPP[:png]] ...   build an icon set from PNG pictures\n"
    "  associate [--check] [ico] [cur] [ani]   make Iconwright the default editor\n"
    "  folder-icon DIR ICON [--index N] [--copy] | DIR --remove   set or remove a folder icon\n"
    "  favicon IN DIR            write DIR/favicon.ico (16, 32, 48 px) and print its markup\n"
    "\n"
    "Run 'iconwright-cli COMMAND --help' for a command's options.\n";

}  // namespace

int main(int argc, char** argv) {
    using namespace iw::cli;
    if (argc < 2) {
        std::cerr << kUsage;
        return kExitUsage;
    }
    const std::string command = argv[1];
    const Args args(argv + 2, argv + argc);
    if (IsHelpFlag(command)) {
        std::cout << kUsage;
        return kExitOk;
    }
    if (command == "info") return RunInfo(args);
    if (command == "extract") return RunExtract(args);
    if (command == "convert") return RunConvert(args);
    if (command == "pack") return RunPack(args);
    if (command == "associate") return RunAssociate(args);
    if (command == "folder-icon") return RunFolderIcon(args);
    if (command == "favicon") return RunFavicon(args);
    std::cerr << "iconwright-cli: unknown command '" << command << "'\n" << kUsage;
    return kExitUsage;
}
