#pragma once
// The resource table of a PE image: a tree of three levels (type, name, language) below
// the resource data directory, whose leaves give the address and size of each resource.
//
//   directory (16)   characteristics | time | version (2 + 2) | named count | number count
//   entries (8 each, the named ones first)
//                    name: a number, or (high bit set) the offset of a string: length in
//                          UTF-16 units, then the units
//                    data: (high bit set) the offset of a subdirectory, else of a data entry
//   data entry (16)  RVA | size | code page | reserved
//
// Offsets in the tree count from the start of the resource data; the data entry's address
// is an RVA. A tree that reaches a directory twice (a loop) or whose directories claim more
// entries than the resource data holds, or more than kMaxResourceEntries in all, is refused
// whole. A single entry that points outside the resource data is left out.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "document/io/PeImage.h"

namespace iw::pe {

inline constexpr std::uint16_t kRtCursor = 1;
inline constexpr std::uint16_t kRtIcon = 3;
inline constexpr std::uint16_t kRtGroupCursor = 12;
inline constexpr std::uint16_t kRtGroupIcon = 14;

// The most directory entries a tree may hold in the types that are read.
inline constexpr std::uint32_t kMaxResourceEntries = 65536;

// A resource's name: a number, or a text (UTF-16 in the file, UTF-8 here).
struct ResourceName {
    bool isText = false;
    std::uint16_t number = 0;
    std::string text;

    // The text, or the number in decimal.
    std::string Display() const;
    bool operator==(const ResourceName&) const = default;
};

// One language of a resource: where its data lies in the file (nothing when its address
// maps into no section's data) and its size.
struct ResourceData {
    std::uint16_t language = 0;
    std::optional<std::uint64_t> fileOffset;
    std::uint32_t size = 0;
};

// One named resource of one type with its languages, in table order.
struct Resource {
    std::uint16_t type = 0;
    ResourceName name;
    std::vector<ResourceData> languages;
};

// The resources of the numbered `types` in table order (types in the order of the table,
// names and languages likewise): empty when the image has no resource table, nothing when
// the tree is refused.
std::optional<std::vector<Resource>> ReadResources(std::span<const std::uint8_t> file,
                                                   const ImageHeaders& headers,
                                                   std::span<const std::uint16_t> types);

}  // namespace iw::pe
