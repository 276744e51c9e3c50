#include "document/io/NeResources.h"

#include <algorithm>

#include "document/io/PeImage.h"
#include "services/core/CheckedBytes.h"

namespace iw::ne {
namespace {

constexpr std::size_t kTableOffsetAt = 0x24;
constexpr std::size_t kResidentNamesAt = 0x26;
constexpr std::size_t kTypeSize = 8;
constexpr std::size_t kResourceSize = 12;
constexpr std::uint16_t kNumbered = 0x8000;
constexpr std::uint32_t kMaxShift = 24;

// The name at `offset` of the table: a length byte and that many characters, taken as
// Latin-1. False when it runs past the table.
bool ReadName(std::span<const std::uint8_t> table, std::uint32_t offset, pe::ResourceName& name) {
    if (!RangeFits(offset, 1, table.size()) ||
        !RangeFits(offset + 1, table[offset], table.size())) {
        return false;
    }
    name.isText = true;
    for (std::size_t i = 0; i < table[offset]; ++i) {
        const std::uint8_t c = table[offset + 1 + i];
        if (c < 0x80) {
            name.text += static_cast<char>(c);
        } else {
            name.text += static_cast<char>(0xC0 | (c >> 6));
            name.text += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return true;
}

}  // namespace

bool IsNeHeader(std::span<const std::uint8_t> header) {
    return header.size() >= kResidentNamesAt + 2 && header[0] == 'N' && header[1] == 'E';
}

bool LooksLikeNeImage(std::span<const std::uint8_t> file) {
    const std::optional<std::uint32_t> at = pe::PeHeaderOffset(file);
    return at && *at < file.size() && IsNeHeader(file.subspan(*at));
}

std::optional<std::vector<pe::Resource>> ReadResources(std::span<const std::uint8_t> file,
                                                       std::span<const std::uint16_t> types) {
    if (!LooksLikeNeImage(file)) return std::nullopt;
    const std::uint64_t ne = *pe::PeHeaderOffset(file);
    const std::uint64_t tableAt = ne + LoadLE16(file.data() + ne + kTableOffsetAt);
    const std::uint64_t namesAt = ne + LoadLE16(file.data() + ne + kResidentNamesAt);
    std::vector<pe::Resource> resources;
    // No resource table: its offset is that of the resident names.
    if (tableAt == namesAt) return resources;
    if (namesAt < tableAt || namesAt > file.size()) return std::nullopt;
    const std::span<const std::uint8_t> table = file.subspan(
        static_cast<std::size_t>(tableAt), static_cast<std::size_t>(namesAt - tableAt));
    if (table.size() < 2) return std::nullopt;
    const std::uint32_t shift = LoadLE16(table.data());
    if (shift > kMaxShift) return std::nullopt;

    std::uint64_t at = 2;
    std::uint32_t budget = pe::kMaxResourceEntries;
    while (true) {
        if (!RangeFits(at, 2, table.size())) return std::nullopt;
        const std::uint16_t type = LoadLE16(table.data() + at);
        if (type == 0) break;
        if (!RangeFits(at, kTypeSize, table.size())) return std::nullopt;
        const std::uint32_t count = LoadLE16(table.data() + at + 2);
        at += kTypeSize;
        if (count > budget || !RangeFits(at, std::uint64_t{count} * kResourceSize, table.size())) {
            return std::nullopt;
        }
        budget -= count;
        const bool wanted = (type & kNumbered) != 0 &&
                            std::find(types.begin(), types.end(), type & ~kNumbered) != types.end();
        for (std::uint32_t i = 0; i < count && wanted; ++i) {
            const std::uint8_t* r = table.data() + at + std::uint64_t{i} * kResourceSize;
            pe::Resource resource;
            resource.type = static_cast<std::uint16_t>(type & ~kNumbered);
            const std::uint16_t id = LoadLE16(r + 6);
            if (id & kNumbered) {
                resource.name.number = static_cast<std::uint16_t>(id & ~kNumbered);
            } else if (!ReadName(table, id, resource.name)) {
                continue;
            }
            pe::ResourceData data;
            const std::uint64_t offset = std::uint64_t{LoadLE16(r)} << shift;
            const std::uint64_t length = std::uint64_t{LoadLE16(r + 2)} << shift;
            // The length is rounded up to the alignment: what lies past the file is cut off.
            if (offset < file.size()) {
                data.fileOffset = offset;
                data.size = static_cast<std::uint32_t>(std::min(length, file.size() - offset));
            }
            resource.languages.push_back(data);
            resources.push_back(std::move(resource));
        }
        at += std::uint64_t{count} * kResourceSize;
    }
    return resources;
}

}  // namespace iw::ne
