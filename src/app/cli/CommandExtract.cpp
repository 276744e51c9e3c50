// iconwright-cli extract FILE DIR

#include <filesystem>
#include <iostream>

#include "CliInput.h"
#include "CliPrograms.h"
#include "Commands.h"
#include "document/io/PngExport.h"

namespace iw::cli {
namespace {

constexpr std::string_view kUsage = "iconwright-cli extract FILE DIR";
constexpr std::string_view kHelp =
    "Writes every image of an icon, cursor or animated cursor as DIR/<index>.png, as the\n"
    "file shows it (a PNG picture given as FILE is one image). DIR is made when missing.\n"
    "A Windows program or library gives every icon and cursor group, each in its first\n"
    "language, as DIR/<group>/<index>.png: <group> is the group's number or name (a cursor\n"
    "group named as an icon group gets '-cursor' after it).\n"
    "\n"
    "Exit status: 0 written, 1 FILE could not be read or a picture not written, 2 usage error.\n";

int ExportInto(const IconSet& set, const std::filesystem::path& dir) {
    const ExportResult result = ExportImagesPng(set, dir);
    if (!result.Ok()) {
        std::cerr << "iconwright-cli: " << result.failed.string() << ": could not be written\n";
        return kExitFailed;
    }
    return kExitOk;
}

int ExtractGroups(const ProgramFile& program, const std::filesystem::path& dir,
                  CliContext& context) {
    const std::vector<ResourceGroup>& groups = program.Groups();
    for (int i = 0; i < static_cast<int>(groups.size()); ++i) {
        IconSet set;
        if (!program.ReadGroup(i, std::nullopt, set, context.Core())) return kExitFailed;
        const std::filesystem::path folder = dir / GroupFolderName(groups, i);
        std::error_code ec;
        std::filesystem::create_directories(folder, ec);
        if (const int status = ExportInto(set, folder); status != kExitOk) return status;
    }
    return kExitOk;
}

}  // namespace

int RunExtract(const Args& args) {
    std::vector<std::string> files;
    for (const std::string& arg : args) {
        if (IsHelpFlag(arg)) {
            std::cout << "usage: " << kUsage << "\n\n" << kHelp;
            return kExitOk;
        }
        if (arg.size() > 1 && arg[0] == '-') return UsageError("unknown option " + arg, kUsage);
        files.push_back(arg);
    }
    if (files.size() != 2) return UsageError("extract takes FILE and DIR", kUsage);
    const std::filesystem::path dir = files[1];
    std::error_code ec;
    std::filesystem::create_directories(dir, ec);
    if (!std::filesystem::is_directory(dir, ec)) {
        std::cerr << "iconwright-cli: " << dir.string() << ": not a folder that can be made\n";
        return kExitFailed;
    }

    CliContext context;
    // A picture is written whole, at its own size.
    if (IsPictureFile(files[0])) {
        RgbaBuffer picture;
        if (!LoadPictureInput(files[0], picture, context)) return kExitFailed;
        return WritePicturePng((dir / "0.png").string(), picture) ? kExitOk : kExitFailed;
    }
    if (IsProgramFile(files[0])) {
        const std::optional<ProgramFile> program = ProgramFile::Open(files[0]);
        if (program && !program->Groups().empty()) return ExtractGroups(*program, dir, context);
    }
    IconSet set;
    if (!LoadInputSet(files[0], set, context)) return kExitFailed;
    return ExportInto(set, dir);
}

}  // namespace iw::cli
