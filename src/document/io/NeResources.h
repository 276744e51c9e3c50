#pragma once
// The resource table of a 16-bit Windows program or library (the NE format: old .exe
// files and .icl icon libraries). The DOS header's e_lfanew points at the "NE" header;
// the word at its offset 0x24 is the resource table's offset from that header, the word
// at 0x26 the resident name table's, which ends the resource table.
//
//   resource table   alignment shift (16 bits), then the types until a type of 0:
//   type (8)         type (high bit set: a number, else the offset of its name) | count |
//                    reserved (32), then `count` resources:
//   resource (12)    offset | length (both in units of 1 << shift) | flags |
//                    name (high bit set: a number, else the offset of its name) | 2 words
//   names            a length byte and that many characters, offsets counted from the
//                    start of the resource table
//
// The table is walked once from start to end, so it cannot loop; a table that runs past
// its end, claims more resources than kMaxResourceEntries or shifts by more than 24 bits
// is refused whole. NE resources have no languages: each has one, numbered 0.

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "document/io/PeResources.h"

namespace iw::ne {

// True when `header`, the file's bytes from e_lfanew on, starts with the "NE" signature.
bool IsNeHeader(std::span<const std::uint8_t> header);

// True when `file` is an NE image: an "MZ" DOS header whose e_lfanew leads to "NE".
bool LooksLikeNeImage(std::span<const std::uint8_t> file);

// The resources of the numbered `types` (as the PE numbers them: RT_ICON is 3) in table
// order, with where their data lies: empty when the image has no resource table, nothing
// when `file` is no NE image or its table is refused.
std::optional<std::vector<pe::Resource>> ReadResources(std::span<const std::uint8_t> file,
                                                       std::span<const std::uint16_t> types);

}  // namespace iw::ne
