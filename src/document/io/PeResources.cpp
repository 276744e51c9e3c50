#include "document/io/PeResources.h"

#include <algorithm>
#include <set>

#include "services/core/CheckedBytes.h"

namespace iw::pe {
namespace {

constexpr std::size_t kDirectorySize = 16;
constexpr std::size_t kEntrySize = 8;
constexpr std::size_t kDataEntrySize = 16;
constexpr std::uint32_t kHighBit = 0x8000'0000u;

void AppendUtf8(std::string& out, std::uint32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// UTF-16 units to UTF-8; a unit of a broken surrogate pair becomes U+FFFD.
std::string Utf8FromUtf16(const std::uint8_t* units, std::size_t count) {
    std::string out;
    for (std::size_t i = 0; i < count; ++i) {
        std::uint32_t c = LoadLE16(units + 2 * i);
        if (c >= 0xD800 && c < 0xDC00 && i + 1 < count) {
            const std::uint32_t low = LoadLE16(units + 2 * (i + 1));
            if (low >= 0xDC00 && low < 0xE000) {
                c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
                ++i;
            }
        }
        if (c >= 0xD800 && c < 0xE000) c = 0xFFFD;
        AppendUtf8(out, c);
    }
    return out;
}

struct DirectoryEntry {
    ResourceName name;
    bool subdirectory = false;
    std::uint32_t target = 0;
};

// Walks the tree over the resource data, refusing loops and absurd counts.
class TreeWalk {
  public:
    explicit TreeWalk(std::span<const std::uint8_t> area) : area_(area), nameBudget_(area.size()) {}

    // The entries of the directory at `offset`, in table order, those whose names cannot
    // be read left out. False when the tree is to be refused.
    bool Directory(std::uint32_t offset, std::vector<DirectoryEntry>& entries) {
        entries.clear();
        if (!visited_.insert(offset).second) return false;  // reached twice: a loop
        if (!RangeFits(offset, kDirectorySize, area_.size())) return false;
        const std::uint8_t* d = area_.data() + offset;
        const std::uint32_t count = std::uint32_t{LoadLE16(d + 12)} + LoadLE16(d + 14);
        if (count > budget_ ||
            !RangeFits(offset + kDirectorySize, std::uint64_t{count} * kEntrySize, area_.size())) {
            return false;
        }
        budget_ -= count;
        entries.reserve(count);
        for (std::uint32_t i = 0; i < count; ++i) {
            const std::uint8_t* e = d + kDirectorySize + std::size_t{i} * kEntrySize;
            DirectoryEntry entry;
            const std::uint32_t name = LoadLE32(e);
            const std::uint32_t data = LoadLE32(e + 4);
            if (name & kHighBit) {
                const NameRead read = ReadName(name & ~kHighBit, entry.name);
                if (read == NameRead::Refused) return false;
                if (read == NameRead::Missing) continue;
            } else {
                entry.name.number = static_cast<std::uint16_t>(name);
            }
            entry.subdirectory = (data & kHighBit) != 0;
            entry.target = data & ~kHighBit;
            entries.push_back(std::move(entry));
        }
        return true;
    }

    // The data entry at `offset`, mapped through the sections; false when it lies outside
    // the resource data.
    bool Data(std::uint32_t offset, const ImageHeaders& headers, ResourceData& data) const {
        if (!RangeFits(offset, kDataEntrySize, area_.size())) return false;
        const std::uint8_t* d = area_.data() + offset;
        data.size = LoadLE32(d + 4);
        data.fileOffset = headers.FileOffsetOf(LoadLE32(d), data.size);
        return true;
    }

  private:
    enum class NameRead { Ok, Missing, Refused };

    // The names together may take no more bytes than the resource data holds: a tree whose
    // entries all name one long string would otherwise make text without end.
    NameRead ReadName(std::uint32_t offset, ResourceName& name) {
        if (!RangeFits(offset, 2, area_.size())) return NameRead::Missing;
        const std::uint32_t units = LoadLE16(area_.data() + offset);
        if (!RangeFits(offset + 2, std::uint64_t{units} * 2, area_.size())) {
            return NameRead::Missing;
        }
        if (std::uint64_t{units} * 2 > nameBudget_) return NameRead::Refused;
        nameBudget_ -= std::uint64_t{units} * 2;
        name.isText = true;
        name.text = Utf8FromUtf16(area_.data() + offset + 2, units);
        return NameRead::Ok;
    }

    std::span<const std::uint8_t> area_;
    std::set<std::uint32_t> visited_;
    std::uint32_t budget_ = kMaxResourceEntries;
    std::uint64_t nameBudget_;
};

}  // namespace

std::string ResourceName::Display() const {
    return isText ? text : std::to_string(number);
}

std::optional<std::vector<Resource>> ReadResources(std::span<const std::uint8_t> file,
                                                   const ImageHeaders& headers,
                                                   std::span<const std::uint16_t> types) {
    std::vector<Resource> resources;
    if (headers.resourceRva == 0) return resources;
    const std::span<const std::uint8_t> area = headers.DataFrom(file, headers.resourceRva);
    if (area.empty()) return std::nullopt;

    TreeWalk walk(area);
    std::vector<DirectoryEntry> typeEntries, nameEntries, languageEntries;
    if (!walk.Directory(0, typeEntries)) return std::nullopt;
    for (const DirectoryEntry& type : typeEntries) {
        if (type.name.isText || !type.subdirectory ||
            std::find(types.begin(), types.end(), type.name.number) == types.end()) {
            continue;
        }
        if (!walk.Directory(type.target, nameEntries)) return std::nullopt;
        for (const DirectoryEntry& name : nameEntries) {
            if (!name.subdirectory) continue;
            if (!walk.Directory(name.target, languageEntries)) return std::nullopt;
            Resource resource;
            resource.type = type.name.number;
            resource.name = name.name;
            for (const DirectoryEntry& language : languageEntries) {
                ResourceData data;
                data.language = language.name.number;
                if (language.subdirectory || language.name.isText ||
                    !walk.Data(language.target, headers, data)) {
                    continue;
                }
                resource.languages.push_back(data);
            }
            if (!resource.languages.empty()) resources.push_back(std::move(resource));
        }
    }
    return resources;
}

}  // namespace iw::pe
