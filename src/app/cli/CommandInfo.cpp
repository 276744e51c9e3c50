// iconwright-cli info [--json] FILE

#include <iostream>
#include <sstream>

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
    "            \"sequence\": [frame indices, empty without a sequence]}\n"
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

std::string AsJson(const std::string& path, const IconSet& set) {
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
    out << "]}";
    return out.str();
}

std::string AsText(const std::string& path, const IconSet& set) {
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
    std::cout << (json ? AsJson(file, set) + "\n" : AsText(file, set));
    return kExitOk;
}

}  // namespace iw::cli
