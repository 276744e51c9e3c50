#include "support/PeBuilder.h"

#include <algorithm>
#include <map>

namespace iw::test {
namespace {

// Resources grouped as the tree holds them: types, then names, then languages.
struct NameNode {
    const PeResourceSpec* first = nullptr;
    std::vector<std::size_t> resources;  // indices into the list given
};
struct TypeNode {
    std::uint16_t type = 0;
    std::vector<NameNode> names;
};

std::vector<TypeNode> Group(const std::vector<PeResourceSpec>& resources) {
    std::vector<TypeNode> types;
    for (std::size_t i = 0; i < resources.size(); ++i) {
        const PeResourceSpec& r = resources[i];
        auto type = std::find_if(types.begin(), types.end(),
                                 [&](const TypeNode& t) { return t.type == r.type; });
        if (type == types.end()) type = types.insert(types.end(), TypeNode{r.type, {}});
        auto name = std::find_if(type->names.begin(), type->names.end(), [&](const NameNode& n) {
            return n.first->text == r.text && n.first->number == r.number;
        });
        if (name == type->names.end()) name = type->names.insert(type->names.end(), {&r, {}});
        name->resources.push_back(i);
    }
    return types;
}

void PutDirectory(Bytes& out, std::uint32_t at, std::uint16_t named, std::uint16_t numbered) {
    PutLE16(out, at + 12, named);
    PutLE16(out, at + 14, numbered);
}

std::uint32_t Align4(std::uint32_t value) {
    return (value + 3) & ~3u;
}

}  // namespace

Bytes BuildResourceSection(const std::vector<PeResourceSpec>& resources, ResourceLayout* layout) {
    const std::vector<TypeNode> types = Group(resources);
    ResourceLayout where;
    std::uint32_t at = 16 + 8 * static_cast<std::uint32_t>(types.size());
    for (const TypeNode& t : types) {
        where.typeDirectories.push_back(at);
        at += 16 + 8 * static_cast<std::uint32_t>(t.names.size());
    }
    for (const TypeNode& t : types) {
        for (const NameNode& n : t.names) {
            where.languageDirectories.push_back(at);
            at += 16 + 8 * static_cast<std::uint32_t>(n.resources.size());
        }
    }
    where.dataEntries.resize(resources.size());
    where.data.resize(resources.size());
    for (std::size_t i = 0; i < resources.size(); ++i) {
        where.dataEntries[i] = at;
        at += 16;
    }
    std::map<const PeResourceSpec*, std::uint32_t> strings;
    for (const PeResourceSpec& r : resources) {
        if (r.text.empty() || strings.count(&r)) continue;
        strings[&r] = at;
        at += 2 + 2 * static_cast<std::uint32_t>(r.text.size());
    }
    for (std::size_t i = 0; i < resources.size(); ++i) {
        at = Align4(at);
        where.data[i] = at;
        at += static_cast<std::uint32_t>(resources[i].data.size());
    }

    Bytes out(at, 0);
    PutDirectory(out, 0, 0, static_cast<std::uint16_t>(types.size()));
    std::size_t nameIndex = 0;
    for (std::size_t t = 0; t < types.size(); ++t) {
        PutLE32(out, 16 + 8 * t, types[t].type);
        PutLE32(out, 16 + 8 * t + 4, 0x8000'0000u | where.typeDirectories[t]);
        const std::uint32_t typeDir = where.typeDirectories[t];
        std::uint16_t named = 0, numbered = 0;
        for (std::size_t n = 0; n < types[t].names.size(); ++n, ++nameIndex) {
            const NameNode& node = types[t].names[n];
            const std::uint32_t entry = typeDir + 16 + 8 * static_cast<std::uint32_t>(n);
            if (node.first->text.empty()) {
                PutLE32(out, entry, node.first->number);
                ++numbered;
            } else {
                PutLE32(out, entry, 0x8000'0000u | strings[node.first]);
                ++named;
            }
            const std::uint32_t languageDir = where.languageDirectories[nameIndex];
            PutLE32(out, entry + 4, 0x8000'0000u | languageDir);
            PutDirectory(out, languageDir, 0, static_cast<std::uint16_t>(node.resources.size()));
            for (std::size_t l = 0; l < node.resources.size(); ++l) {
                const std::size_t i = node.resources[l];
                const std::uint32_t languageEntry =
                    languageDir + 16 + 8 * static_cast<std::uint32_t>(l);
                PutLE32(out, languageEntry, resources[i].language);
                PutLE32(out, languageEntry + 4, where.dataEntries[i]);
            }
        }
        PutDirectory(out, typeDir, named, numbered);
    }
    for (std::size_t i = 0; i < resources.size(); ++i) {
        PutLE32(out, where.dataEntries[i], kSectionRva + where.data[i]);
        PutLE32(out, where.dataEntries[i] + 4,
                static_cast<std::uint32_t>(resources[i].data.size()));
        std::copy(resources[i].data.begin(), resources[i].data.end(), out.begin() + where.data[i]);
    }
    for (const auto& [spec, offset] : strings) {
        PutLE16(out, offset, static_cast<std::uint16_t>(spec->text.size()));
        for (std::size_t c = 0; c < spec->text.size(); ++c)
            PutLE16(out, offset + 2 + 2 * c, static_cast<std::uint8_t>(spec->text[c]));
    }
    if (layout) *layout = where;
    return out;
}

std::uint32_t SectionHeaderOffset(bool pe32Plus) {
    return kPeOffset + 4 + 20 + (pe32Plus ? 112u : 96u) + 16 * 8;
}

Bytes BuildPeImage(const Bytes& section, bool pe32Plus) {
    const std::uint32_t optionalSize = (pe32Plus ? 112u : 96u) + 16 * 8;
    Bytes out(kSectionFileOffset, 0);
    out[0] = 'M';
    out[1] = 'Z';
    PutLE32(out, 0x3C, kPeOffset);
    out[kPeOffset] = 'P';
    out[kPeOffset + 1] = 'E';
    const std::uint32_t coff = kPeOffset + 4;
    PutLE16(out, coff, pe32Plus ? 0x8664 : 0x14C);
    PutLE16(out, coff + 2, 1);
    PutLE16(out, coff + 16, static_cast<std::uint16_t>(optionalSize));
    const std::uint32_t optional = coff + 20;
    PutLE16(out, optional, pe32Plus ? 0x20B : 0x10B);
    PutLE32(out, optional + (pe32Plus ? 108 : 92), 16);
    const std::uint32_t resourceDirectory = optional + (pe32Plus ? 112 : 96) + 2 * 8;
    PutLE32(out, resourceDirectory, kSectionRva);
    PutLE32(out, resourceDirectory + 4, static_cast<std::uint32_t>(section.size()));
    const std::uint32_t header = SectionHeaderOffset(pe32Plus);
    const char name[] = ".rsrc";
    std::copy(name, name + 5, out.begin() + header);
    PutLE32(out, header + 8, static_cast<std::uint32_t>(section.size()));
    PutLE32(out, header + 12, kSectionRva);
    PutLE32(out, header + 16, static_cast<std::uint32_t>(section.size()));
    PutLE32(out, header + 20, kSectionFileOffset);
    out.insert(out.end(), section.begin(), section.end());
    return out;
}

Bytes BuildGroupDirectory(const std::vector<GroupEntrySpec>& entries, bool cursor) {
    Bytes out;
    AppendLE16(out, 0);
    AppendLE16(out, cursor ? 2 : 1);
    AppendLE16(out, static_cast<std::uint16_t>(entries.size()));
    for (const GroupEntrySpec& e : entries) {
        if (cursor) {
            AppendLE16(out, static_cast<std::uint16_t>(e.width));
            AppendLE16(out, static_cast<std::uint16_t>(e.height * 2));
        } else {
            out.push_back(static_cast<std::uint8_t>(e.width & 0xFF));
            out.push_back(static_cast<std::uint8_t>(e.height & 0xFF));
            out.push_back(0);
            out.push_back(0);
        }
        AppendLE16(out, 1);
        AppendLE16(out, static_cast<std::uint16_t>(e.bitCount));
        AppendLE32(out, e.bytes);
        AppendLE16(out, e.number);
    }
    return out;
}

Bytes CursorImage(int hotspotX, int hotspotY, const Bytes& image) {
    Bytes out;
    AppendLE16(out, static_cast<std::uint16_t>(hotspotX));
    AppendLE16(out, static_cast<std::uint16_t>(hotspotY));
    out.insert(out.end(), image.begin(), image.end());
    return out;
}

BitmapSpec PatternBitmap(int side) {
    BitmapSpec spec;
    spec.width = spec.height = side;
    spec.pixel = [](int x, int y) {
        return Rgba{static_cast<std::uint8_t>(x * 20), static_cast<std::uint8_t>(y * 30), 90, 255};
    };
    return spec;
}

std::vector<PeResourceSpec> IconAndCursorGroups(const std::string& iconGroup,
                                                const std::string& cursorGroup,
                                                std::uint16_t language) {
    auto named = [language](std::uint16_t type, const std::string& name, Bytes data) {
        PeResourceSpec spec{type, 0, name, language, std::move(data)};
        if (std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; })) {
            spec.number = static_cast<std::uint16_t>(std::stoi(name));
            spec.text.clear();
        }
        return spec;
    };
    return {
        {3, 1, "", language, BuildBitmap(PatternBitmap(8))},
        {1, 2, "", language, CursorImage(3, 4, BuildBitmap(PatternBitmap(6)))},
        named(14, iconGroup, BuildGroupDirectory({{8, 8, 32, 1}})),
        named(12, cursorGroup, BuildGroupDirectory({{6, 6, 32, 2}}, true)),
    };
}

}  // namespace iw::test
