#pragma once
// Builds small Windows images (PE32 or PE32+) with a resource section in tests, so that
// hostile layouts can be made by changing a stated field instead of carrying opaque blobs.
//
// The image: a DOS header whose e_lfanew is kPeOffset, the PE signature, the COFF header,
// an optional header with 16 data directories (the resource directory pointing at the
// whole section), and one section ".rsrc" whose header is at SectionHeaderOffset(), mapped
// at kSectionRva from file offset kSectionFileOffset.
//
// The resource section: the root directory at 0, then the type directories (listing names)
// and the name directories (listing languages) in order, then the data entries, the names'
// strings and the data. Types, names and languages keep the order given.

#include <cstdint>
#include <string>
#include <vector>

#include "support/IcoBuilder.h"

namespace iw::test {

inline constexpr std::uint32_t kPeOffset = 0x40;
inline constexpr std::uint32_t kSectionRva = 0x1000;
inline constexpr std::uint32_t kSectionFileOffset = 0x200;

struct PeResourceSpec {
    std::uint16_t type = 0;
    std::uint16_t number = 0;  // the name when `text` is empty
    std::string text;          // ASCII
    std::uint16_t language = 1033;
    Bytes data;
};

// Where the pieces of a built resource section lie, from its start.
struct ResourceLayout {
    std::vector<std::uint32_t> typeDirectories;      // one a type (listing its names), in order
    std::vector<std::uint32_t> languageDirectories;  // one a (type, name), listing languages
    std::vector<std::uint32_t> dataEntries;          // one a resource, in the order given
    std::vector<std::uint32_t> data;                 // likewise
};

Bytes BuildResourceSection(const std::vector<PeResourceSpec>& resources,
                           ResourceLayout* layout = nullptr);

// The image around `section`.
Bytes BuildPeImage(const Bytes& section, bool pe32Plus = true);
// The file offset of the section header (virtual size at +8, address at +12, raw size at
// +16, raw pointer at +20).
std::uint32_t SectionHeaderOffset(bool pe32Plus = true);

// One group directory entry.
struct GroupEntrySpec {
    int width = 16;  // written as a byte (icons, 256 as 0) or a word (cursors)
    int height = 16;
    int bitCount = 32;
    std::uint16_t number = 1;
    std::uint32_t bytes = 0;
};
// An RT_GROUP_ICON (cursor = false) or RT_GROUP_CURSOR directory.
Bytes BuildGroupDirectory(const std::vector<GroupEntrySpec>& entries, bool cursor = false);
// An RT_CURSOR's data: the hotspot, then the image.
Bytes CursorImage(int hotspotX, int hotspotY, const Bytes& image);

// A 32-bit bitmap whose pixel (x, y) is red 20 x, green 30 y, blue 90.
BitmapSpec PatternBitmap(int side);
// RT_ICON 1 (an 8 x 8 pattern), RT_CURSOR 2 (a 6 x 6 pattern, hotspot 3, 4), an icon group
// naming RT_ICON 1 and a cursor group naming RT_CURSOR 2, in this order. A name of digits
// is a number.
std::vector<PeResourceSpec> IconAndCursorGroups(const std::string& iconGroup,
                                                const std::string& cursorGroup,
                                                std::uint16_t language);

}  // namespace iw::test
