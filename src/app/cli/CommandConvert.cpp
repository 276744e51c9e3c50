// iconwright-cli convert IN OUT [options]

#include <iostream>

#include "CliInput.h"
#include "CliPrograms.h"
#include "Commands.h"
#include "document/io/ImageConversion.h"
#include "services/desktop/ProgramFolders.h"
#include "services/desktop/TemplateLibrary.h"

namespace iw::cli {
namespace {

constexpr std::string_view kUsage =
    "iconwright-cli convert IN OUT [--template NAME] [--index N] [--hotspot X,Y]\n"
    "                       [--rate JIFFIES] [--name TEXT] [--artist TEXT] [--sequence 0,1,2,...]\n"
    "                       [--group NAME] [--language ID]";
constexpr std::string_view kHelp =
    "Reads an icon, cursor or animated cursor, or a picture (PNG, JPEG, GIF, BMP, Photoshop),\n"
    "and writes OUT by its extension. A picture becomes one 32-bit image; one larger than\n"
    "256 x 256 is resampled to fit inside 256 x 256 with its aspect kept.\n"
    "  --template NAME   make a whole icon set from the picture (an icon gives its largest\n"
    "                    image) with the formats of the template NAME, one of the program's\n"
    "                    own or the user's: each size resampled from the picture, fitted\n"
    "                    and centred on transparency, at the template's depths\n"
    "  .ico   every image\n"
    "  .cur   one image (--index N, default 0) with the set's hotspot or --hotspot X,Y\n"
    "  .ani   every image as a frame; --rate, --name, --artist and --sequence set the\n"
    "         frames' rate in jiffies (1/60 s), the name, the artist and the play order\n"
    "  .png   a picture decoded and written again as PNG by Iconwright's codec (an icon\n"
    "         gives its largest image; use extract for every image)\n"
    "A Windows program or library (.exe, .dll, .ocx, .cpl, .scr, .icl) gives one of its\n"
    "icon or cursor groups ('info' lists them), its images and pixels unchanged:\n"
    "  --group NAME      the group called NAME (a number or a name; for a .cur OUT the\n"
    "                    cursor groups are looked at first); without it the first icon\n"
    "                    group, as a file manager shows the program\n"
    "  --language ID     the group in that language (a number, 1033 for US English);\n"
    "                    without it the group's first\n"
    "A cursor group written as .cur keeps the hotspot of its image --index.\n"
    "\n"
    "Exit status: 0 written, 1 the input could not be read or OUT not written, 2 usage error.\n";

bool IsPngPath(const std::string& path) {
    return path.size() > 4 && (path.compare(path.size() - 4, 4, ".png") == 0 ||
                               path.compare(path.size() - 4, 4, ".PNG") == 0);
}

// A picture decoded and encoded again: at its own size, whatever it is.
int ReencodePicture(const std::string& in, const std::string& out) {
    CliContext context;
    RgbaBuffer picture;
    if (!LoadPictureInput(in, picture, context)) return kExitFailed;
    return WritePicturePng(out, picture) ? kExitOk : kExitFailed;
}

// The formats of the template called `name`, or a message and false.
bool TemplateFormats(const std::string& name, CliContext& context, std::vector<IconInfo>& formats) {
    TemplateLibrary library;
    library.LoadAll(ProgramTemplatesFolder(ExecutableFolder()), UserTemplatesFolder(),
                    context.Core().messages);
    const IconTemplate* found = library.Find(name);
    if (!found) {
        std::cerr << "iconwright-cli: no template is called '" << name << "'; the templates are:";
        for (const IconTemplate& t : library.Templates())
            std::cerr << "\n  " << t.name;
        std::cerr << "\n";
        return false;
    }
    formats = FormatsOf(found->entries);
    return true;
}

int ConvertWithTemplate(const std::string& in, const std::string& out,
                        const OutputOptions& options) {
    CliContext context;
    std::vector<IconInfo> formats;
    if (!TemplateFormats(*options.templateName, context, formats)) return kExitUsage;
    RgbaBuffer picture;
    if (!LoadPictureInput(in, picture, context)) return kExitFailed;
    IconSet set;
    NullProgress progress;
    if (!ConvertPicture(picture, formats, set, progress)) {
        std::cerr << "iconwright-cli: " << in << ": nothing to convert\n";
        return kExitFailed;
    }
    set.mode = FileModeFromPath(out);
    return WriteOutputSet(out, set, options, context) ? kExitOk : kExitFailed;
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
    if (options.templateName) {
        if (OutputKind(out).empty())
            return UsageError("OUT must end in .ico, .cur or .ani", kUsage);
        return ConvertWithTemplate(in, out, options);
    }
    if (IsPngPath(out)) return ReencodePicture(in, out);
    if (OutputKind(out).empty())
        return UsageError("OUT must end in .ico, .cur, .ani or .png", kUsage);

    CliContext context;
    IconSet set;
    if (IsProgramFile(in)) {
        const std::optional<ProgramFile> program = ProgramFile::Open(in);
        // A program without groups is read as any other file, unless a group was asked for.
        if (program && (!program->Groups().empty() || options.group || options.language)) {
            if (!ReadProgramInput(*program, out, options, set, context)) return kExitFailed;
            return WriteOutputSet(out, set, options, context) ? kExitOk : kExitFailed;
        }
    } else if (options.group || options.language) {
        return UsageError("--group and --language take a program's groups", kUsage);
    }
    if (!LoadInputSet(in, set, context)) return kExitFailed;
    return WriteOutputSet(out, set, options, context) ? kExitOk : kExitFailed;
}

}  // namespace iw::cli
