// iconwright-cli convert IN OUT [options]

#include <iostream>

#include "CliInput.h"
#include "Commands.h"

namespace iw::cli {
namespace {

constexpr std::string_view kUsage =
    "iconwright-cli convert IN OUT [--index N] [--hotspot X,Y] [--rate JIFFIES] [--name TEXT]\n"
    "                       [--artist TEXT] [--sequence 0,1,2,...]";
constexpr std::string_view kHelp =
    "Reads an icon, cursor or animated cursor (or a PNG picture as one 32-bit image) and\n"
    "writes OUT by its extension:\n"
    "  .ico   every image\n"
    "  .cur   one image (--index N, default 0) with the set's hotspot or --hotspot X,Y\n"
    "  .ani   every image as a frame; --rate, --name, --artist and --sequence set the\n"
    "         frames' rate in jiffies (1/60 s), the name, the artist and the play order\n"
    "  .png   (with a PNG input) the picture decoded and encoded again by Iconwright's codec\n"
    "\n"
    "Exit status: 0 written, 1 the input could not be read or OUT not written, 2 usage error.\n";

bool IsPngPath(const std::string& path) {
    return path.size() > 4 && (path.compare(path.size() - 4, 4, ".png") == 0 ||
                               path.compare(path.size() - 4, 4, ".PNG") == 0);
}

int ConvertPicture(const std::string& in, const std::string& out) {
    CliContext context;
    c32bppDIB picture;
    IconSet set;
    switch (ReadInput(in, picture, set, context)) {
        case InputKind::Picture:
            break;
        case InputKind::IconSet:
            return UsageError("a .png output needs a PNG input (use extract for icons)", kUsage);
        case InputKind::Unreadable:
            return kExitFailed;
    }
    std::vector<std::uint8_t> stream;
    picture.SaveToStream_PNG(stream);
    return WritePngFile(out, stream) ? kExitOk : kExitFailed;
}

}  // namespace

int RunConvert(const Args& args) {
    std::vector<std::string> files;
    OutputOptions options;
    bool help = false;
    std::string error;
    if (!SplitArguments(args, files, options, help, error)) return UsageError(error, kUsage);
    if (help) {
        std::cout << "usage: " << kUsage << "\n\n" << kHelp;
        return kExitOk;
    }
    if (files.size() != 2) return UsageError("convert takes IN and OUT", kUsage);
    const std::string& in = files[0];
    const std::string& out = files[1];
    if (IsPngPath(out)) return ConvertPicture(in, out);
    if (OutputKind(out).empty())
        return UsageError("OUT must end in .ico, .cur, .ani or .png", kUsage);

    CliContext context;
    IconSet set;
    if (!LoadInputSet(in, set, context)) return kExitFailed;
    return WriteOutputSet(out, set, options, context) ? kExitOk : kExitFailed;
}

}  // namespace iw::cli
