// iconwright-cli info [--json] FILE

#include <iostream>
#include <sstream>

#include "CliPrograms.h"
#include "Commands.h"
#include "document/io/AnimatedCursor.h"
#include "document/io/IconFileReader.h"

namespace iw::cli {
namespace {

constexpr std::string_view kUsage = "iconwright-cli info [--json] FILE";
constexpr std::string_view kHelp =
    "Reads an icon (.ico), cursor (.cur) or animated cursor (.ani) and prints its images.\n"
    "\n"
    "  --json   print one JSON object:\n"
    "           {\"file\", \"mode\", \"images\": [{\"index\", \"width\", \"height\", \"bpp\",\n"
    "            \"png\", \"rate\"}], \"hotspot\": [x, y], \"name\", \"artist\",\n"
    "            \"sequence\": [frame indices, empty without a sequence],\n"
    "            \"groups\": [{\"type\": \"icon\" or \"cursor\", \"name\", \"numbered\",\n"
    "             \"language\", \"languages\", \"images\": [{\"index\", \"width\", \"height\",\n"
    "             \"bpp\", \"png\", \"found\", \"hotspot\": [x, y]}]}]}\n"
    "\n"
    "A Windows program or library (.exe, .dll, .ocx, .cpl, .scr, .icl) shows the first\n"
    "icon group (as a file manager shows the program: the images above) and lists every\n"
    "icon and cursor group, each in its first language with the other languages it has;\n"
    "\"groups\" is empty for every other file.\n"
    "\n"
    "Exit status: 0 read, 1 the file could not be read, 2 usage error.\n";

const char* ModeName(FileMode mode) {
    switch (mode) {
        case FileMode::CUR:
            return "CUR";
        case FileMode::ANI:
            return "ANI";
        case FileMode::ICO:
            break;
    }
    return "ICO";
}

using Groups = std::vector<ResourceGroup>;

std::string GroupsAsJson(const Groups& groups) {
    std::ostringstream out;
    out << "[";
    for (std::size_t g = 0; g < groups.size(); ++g) {
        const ResourceGroup& group = groups[g];
        out << (g ? ", " : "") << "{\"type\": \"" << GroupKindName(group.kind)
            << "\", \"name\": " << JsonString(group.name.Display())
            << ", \"numbered\": " << (group.name.isText ? "false" : "true")
            << ", \"language\": " << group.language << ", \"languages\": [";
        for (std::size_t l = 0; l < group.languages.size(); ++l)
            out << (l ? ", " : "") << group.languages[l];
        out << "], \"images\": [";
        for (std::size_t i = 0; i < group.images.size(); ++i) {
            const ResourceImageSummary& image = group.images[i];
            out << (i ? ", " : "") << "{\"index\": " << i << ", \"width\": " << image.width
                << ", \"height\": " << image.height << ", \"bpp\": " << image.bitCount
                << ", \"png\": " << (image.png ? "true" : "false")
                << ", \"found\": " << (image.present ? "true" : "false") << ", \"hotspot\": ["
                << image.hotspotX << ", " << image.hotspotY << "]}";
        }
        out << "]}";
    }
    out << "]";
    return out.str();
}

std::string GroupsAsText(const Groups& groups) {
    std::ostringstream out;
    out << "Groups:  " << groups.size() << "\n";
    for (const ResourceGroup& group : groups) {
        out << "  " << GroupKindName(group.kind) << " " << group.name.Display() << ", language "
            << group.language;
        if (group.languages.size() > 1) {
            out << " (also";
            for (std::uint16_t language : group.languages) {
                if (language != group.language) out << " " << language;
            }
            out << ")";
        }
        out << ", " << group.images.size() << (group.images.size() == 1 ? " image" : " images")
            << "\n";
        for (std::size_t i = 0; i < group.images.size(); ++i) {
            const ResourceImageSummary& image = group.images[i];
            out << "    #" << i << "  " << image.width << " x " << image.height << ", "
                << image.bitCount << " bpp" << (image.png ? ", PNG" : "");
            if (group.kind == ResourceGroupKind::Cursor) {
                out << ", hotspot " << image.hotspotX << ", " << image.hotspotY;
            }
            if (!image.present) out << ", missing";
            out << "\n";
        }
    }
    return out.str();
}

std::string AsJson(const std::string& path, const IconSet& set, const Groups& groups) {
    std::ostringstream out;
    out << "{\"file\": " << JsonString(path) << ", \"mode\": \"" << ModeName(set.mode)
        << "\", \"images\": [";
    for (int i = 0; i < set.Count(); ++i) {
        const IconInfo& info = set.Info(i);
        out << (i ? ", " : "") << "{\"index\": " << i << ", \"width\": " << info.Width()
            << ", \"height\": " << info.Height() << ", \"bpp\": " << info.bitCount
            << ", \"png\": " << (info.png ? "true" : "false") << ", \"rate\": " << info.rate << "}";
    }
    out << "], \"hotspot\": [" << set.properties.hotspotX << ", " << set.properties.hotspotY
        << "], \"name\": " << JsonString(set.properties.name)
        << ", \"artist\": " << JsonString(set.properties.artist) << ", \"sequence\": [";
    if (set.animation.sequenceInUse) {
        const std::vector<int> frames = ParseSequence(set.properties.sequence);
        for (std::size_t i = 0; i < frames.size(); ++i)
            out << (i ? ", " : "") << frames[i];
    }
    out << "], \"groups\": " << GroupsAsJson(groups) << "}";
    return out.str();
}

std::string AsText(const std::string& path, const IconSet& set, const Groups& groups) {
    std::ostringstream out;
    out << "File:    " << path << "\n"
        << "Mode:    " << ModeName(set.mode) << "\n"
        << "Images:  " << set.Count() << "\n";
    for (int i = 0; i < set.Count(); ++i) {
        const IconInfo& info = set.Info(i);
        out << "  #" << i << "  " << info.Width() << " x " << info.Height() << ", " << info.bitCount
            << " bpp" << (info.png ? ", PNG" : "");
        if (set.mode == FileMode::ANI) out << ", rate " << info.rate;
        out << "\n";
    }
    if (set.mode != FileMode::ICO) {
        out << "Hotspot: " << set.properties.hotspotX << ", " << set.properties.hotspotY << "\n";
    }
    if (!set.properties.name.empty()) out << "Name:    " << set.properties.name << "\n";
    if (!set.properties.artist.empty()) out << "Artist:  " << set.properties.artist << "\n";
    if (set.animation.sequenceInUse) out << "Sequence: " << set.properties.sequence << "\n";
    if (!groups.empty()) out << GroupsAsText(groups);
    return out.str();
}

}  // namespace

int RunInfo(const Args& args) {
    bool json = false;
    std::string file;
    for (const std::string& arg : args) {
        if (IsHelpFlag(arg)) {
            std::cout << "usage: " << kUsage << "\n\n" << kHelp;
            return kExitOk;
        }
        if (arg == "--json") {
            json = true;
        } else if (!arg.empty() && arg[0] == '-' && arg != "-") {
            return UsageError("unknown option " + arg, kUsage);
        } else if (file.empty()) {
            file = arg;
        } else {
            return UsageError("more than one file given", kUsage);
        }
    }
    if (file.empty()) return UsageError("no file given", kUsage);

    CliContext context;
    IconSet set;
    if (!ReadIconFile(file, set, context.Core())) return kExitFailed;
    Groups groups;
    if (IsProgramFile(file)) {
        if (const std::optional<ProgramFile> program = ProgramFile::Open(file)) {
            groups = program->Groups();
        }
    }
    std::cout << (json ? AsJson(file, set, groups) + "\n" : AsText(file, set, groups));
    return kExitOk;
}

}  // namespace iw::cli
