// iconwright-cli favicon IN DIR [--force] [--touch-icons]

#include <filesystem>
#include <iostream>

#include "CliInput.h"
#include "Commands.h"
#include "document/io/Favicon.h"
#include "document/io/IconFileWriter.h"

namespace iw::cli {
namespace {

constexpr std::string_view kUsage = "iconwright-cli favicon IN DIR [--force] [--touch-icons]";
constexpr std::string_view kHelp =
    "Writes DIR/favicon.ico with 16, 32 and 48 px 32-bit images and prints the markup for a\n"
    "page's <head>. IN is an icon (the sizes it has are kept as they are, the others are\n"
    "resampled from its largest image) or a picture (PNG, JPEG, GIF, BMP, Photoshop; every\n"
    "size resampled from it, centred on transparency when it is not square).\n"
    "  --touch-icons  also write apple-touch-icon.png (180 px), icon-192.png and icon-512.png\n"
    "                 for phones and web app manifests, and print their markup\n"
    "  --force        replace files that exist; without it nothing is written when one does\n"
    "\n"
    "Exit status: 0 written, 1 IN could not be read, a file exists or could not be written,\n"
    "2 usage error.\n";

}  // namespace

int RunFavicon(const Args& args) {
    std::vector<std::string> files;
    bool force = false;
    bool touchIcons = false;
    for (const std::string& arg : args) {
        if (IsHelpFlag(arg)) {
            std::cout << "usage: " << kUsage << "\n\n" << kHelp;
            return kExitOk;
        }
        if (arg == "--force") {
            force = true;
        } else if (arg == "--touch-icons") {
            touchIcons = true;
        } else if (arg.size() > 1 && arg[0] == '-') {
            return UsageError("unknown option " + arg, kUsage);
        } else {
            files.push_back(arg);
        }
    }
    if (files.size() != 2) return UsageError("favicon takes IN and DIR", kUsage);
    const std::filesystem::path dir = files[1];
    std::error_code error;
    if (!force) {
        for (const auto& file : FaviconFiles(dir, touchIcons)) {
            if (std::filesystem::exists(file, error)) {
                std::cerr << "iconwright-cli: " << file.string()
                          << " already exists; nothing was written (--force replaces it)\n";
                return kExitFailed;
            }
        }
    }
    std::filesystem::create_directories(dir, error);
    if (!std::filesystem::is_directory(dir, error)) {
        std::cerr << "iconwright-cli: " << dir.string() << ": not a folder that can be made\n";
        return kExitFailed;
    }

    CliContext context;
    IconSet favicon;
    RgbaBuffer largest;
    if (IsPictureFile(files[0])) {
        if (!LoadPictureInput(files[0], largest, context)) return kExitFailed;
        BuildFaviconSet(largest, favicon);
    } else {
        IconSet source;
        if (!LoadInputSet(files[0], source, context)) return kExitFailed;
        BuildFaviconSet(source, favicon);
        largest = LargestImagePixels(source);
    }
    const std::filesystem::path target = dir / kFaviconFileName;
    if (favicon.Empty() || !WriteIconFile(target.string(), favicon, context.Core())) {
        std::cerr << "iconwright-cli: " << target.string() << ": could not be written\n";
        return kExitFailed;
    }
    if (touchIcons && !WriteTouchIcons(largest, dir, [](const auto&) { return true; })) {
        std::cerr << "iconwright-cli: the touch icons could not be written in " << dir.string()
                  << "\n";
        return kExitFailed;
    }
    std::cout << FaviconMarkup(touchIcons);
    return kExitOk;
}

}  // namespace iw::cli
