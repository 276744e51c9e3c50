#include "CliPrograms.h"

#include <cctype>
#include <iostream>

namespace iw::cli {

const char* GroupKindName(ResourceGroupKind kind) {
    return kind == ResourceGroupKind::Icon ? "icon" : "cursor";
}

namespace {

std::string SafeFolderName(const std::string& name) {
    std::string safe;
    for (unsigned char c : name)
        safe += std::isalnum(c) || c == '-' || c == '_' || c == '.' ? static_cast<char>(c) : '_';
    if (safe.empty() || safe == "." || safe == "..") safe = "_" + safe;
    return safe;
}

int FindGroup(const ProgramFile& program, const OutputOptions& options, const std::string& out) {
    const ProgramIconTable& table = program.Table();
    if (!options.group) return table.FirstGroup();
    ResourceGroupKind first = ResourceGroupKind::Icon, second = ResourceGroupKind::Cursor;
    if (OutputKind(out) == ".cur") std::swap(first, second);
    const int found = table.Find(first, *options.group);
    return found >= 0 ? found : table.Find(second, *options.group);
}

}  // namespace

std::string GroupFolderName(const std::vector<ResourceGroup>& groups, int index) {
    const ResourceGroup& group = groups.at(static_cast<std::size_t>(index));
    std::string folder = SafeFolderName(group.name.Display());
    if (group.kind == ResourceGroupKind::Cursor) {
        for (const ResourceGroup& other : groups) {
            if (other.kind == ResourceGroupKind::Icon &&
                SafeFolderName(other.name.Display()) == folder) {
                return folder + "-cursor";
            }
        }
    }
    return folder;
}

bool ReadProgramInput(const ProgramFile& program, const std::string& out,
                      const OutputOptions& options, IconSet& set, CliContext& context) {
    const int index = FindGroup(program, options, out);
    if (index < 0) {
        std::cerr << "iconwright-cli: " << program.Path() << ": "
                  << (options.group ? "no icon or cursor group is called '" + *options.group + "'"
                                    : std::string("no icon or cursor group"))
                  << "\n";
        return false;
    }
    std::optional<std::uint16_t> language;
    if (options.language) language = static_cast<std::uint16_t>(*options.language);
    if (!program.ReadGroup(index, language, set, context.Core())) return false;
    const ResourceGroup group = program.Describe(index, language);
    const auto image = static_cast<std::size_t>(options.index);
    if (group.kind == ResourceGroupKind::Cursor && image < group.images.size()) {
        set.properties.hotspotX = static_cast<std::int16_t>(group.images[image].hotspotX);
        set.properties.hotspotY = static_cast<std::int16_t>(group.images[image].hotspotY);
    }
    return true;
}

}  // namespace iw::cli
