// iconwright-cli pack OUT IN.png[:BPP[:png]] ... [options]

#include <iostream>

#include "CliInput.h"
#include "Commands.h"
#include "document/io/IconFileReader.h"
#include "document/io/PictureImport.h"
#include "services/core/ParseInteger.h"

namespace iw::cli {
namespace {

constexpr std::string_view kUsage =
    "iconwright-cli pack OUT IN.png[:BPP[:png]] ... [--index N] [--hotspot X,Y] [--rate J]\n"
    "                    [--name TEXT] [--artist TEXT] [--sequence 0,1,2,...]";
constexpr std::string_view kHelp =
    "Builds an icon set from PNG pictures (at most 256 x 256), one image each, and writes\n"
    "OUT (.ico, .cur or .ani) as convert does.\n"
    "  BPP   1, 4, 8, 24 or 32 (default 32). Below 32 bits a pixel with alpha below 128 is\n"
    "        transparent; 4-bit colours are mapped to the sixteen standard colours, 1-bit\n"
    "        colours to black and white; 8-bit images get their palette when written.\n"
    "  png   store the image PNG-compressed.\n"
    "\n"
    "Exit status: 0 written, 1 an input could not be read or OUT not written, 2 usage error.\n";

struct PackItem {
    std::string path;
    int bitCount = 32;
    bool png = false;
};

// "a.png", "a.png:8", "a.png:32:png".
bool ParseItem(const std::string& text, PackItem& item) {
    std::vector<std::string> parts;
    std::size_t at = 0;
    while (true) {
        // A Windows drive letter ("C:\...") is part of the path, not a field.
        std::size_t colon = text.find(':', at == 0 && text.size() > 2 && text[1] == ':' ? 2 : at);
        parts.push_back(
            text.substr(at, colon == std::string::npos ? std::string::npos : colon - at));
        if (colon == std::string::npos) break;
        at = colon + 1;
    }
    if (parts.size() > 3 || parts[0].empty()) return false;
    item.path = parts[0];
    if (parts.size() >= 2) {
        const std::optional<int> bpp = ParseInteger<int>(parts[1]);
        if (!bpp || (*bpp != 1 && *bpp != 4 && *bpp != 8 && *bpp != 24 && *bpp != 32)) return false;
        item.bitCount = *bpp;
    }
    if (parts.size() == 3) {
        if (parts[2] != "png") return false;
        item.png = true;
    }
    return true;
}

}  // namespace

int RunPack(const Args& args) {
    std::vector<std::string> plain;
    OutputOptions options;
    bool help = false;
    std::string error;
    if (!SplitArguments(args, plain, options, help, error)) return UsageError(error, kUsage);
    if (help) {
        std::cout << "usage: " << kUsage << "\n\n" << kHelp;
        return kExitOk;
    }
    if (options.templateName) return UsageError("--template belongs to convert", kUsage);
    const std::string out = plain.empty() ? std::string() : plain.front();
    std::vector<PackItem> items;
    for (std::size_t i = 1; i < plain.size(); ++i) {
        PackItem item;
        if (!ParseItem(plain[i], item)) return UsageError("bad picture " + plain[i], kUsage);
        items.push_back(item);
    }
    if (out.empty() || items.empty()) return UsageError("pack takes OUT and pictures", kUsage);
    if (OutputKind(out).empty()) return UsageError("OUT must end in .ico, .cur or .ani", kUsage);
    if (items.size() > static_cast<std::size_t>(IconSet::kMaxImages)) {
        return UsageError("a set holds at most 175 images", kUsage);
    }

    CliContext context;
    IconSet set;
    set.mode = FileModeFromPath(out);
    for (const PackItem& item : items) {
        if (!IsPictureFile(item.path)) {
            IconSet probe;
            if (!ReadIconFile(item.path, probe, context.Core())) return kExitFailed;
            return UsageError(item.path + " is an icon file, not a picture", kUsage);
        }
        RgbaBuffer picture;
        if (!LoadPictureInput(item.path, picture, context)) return kExitFailed;
        if (AddRgbaImage(set, picture, item.bitCount, item.png) < 0) {
            std::cerr << "iconwright-cli: " << item.path << ": the picture is " << picture.Width()
                      << " x " << picture.Height() << "; icon images are at most 256 x 256\n";
            return kExitFailed;
        }
    }
    return WriteOutputSet(out, set, options, context) ? kExitOk : kExitFailed;
}

}  // namespace iw::cli
