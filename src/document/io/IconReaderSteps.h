#pragma once
// The steps the icon reader is built from; each works on the whole file in memory.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "document/io/IconFileReader.h"

namespace iw::detail {

// Where each accepted image's data lies, in image order, as the directory says (the salvage
// reader knows only the start). Neither number is trusted: both are checked against the file.
struct EntryLocation {
    std::uint64_t offset = 0;
    std::uint64_t size = 0;
};
using EntryOffsets = std::vector<EntryLocation>;

// Walks the ".ico" directory: adds one image per accepted entry (at most 175) with the
// entry's sides (field 0 from the height byte, field 1 from the width byte, 0 meaning 256)
// and bit count.
IconReadStatus ReadDirectory(std::span<const std::uint8_t> file, IconSet& set,
                             EntryOffsets& offsets);

// Scans every byte position for a bitmap information header and adds one image per find.
IconReadStatus FindBitmapHeaders(std::span<const std::uint8_t> file, IconSet& set,
                                 EntryOffsets& offsets);

// True when position `p` holds what the salvage reader takes for a bitmap header.
bool IsBitmapHeaderAt(std::span<const std::uint8_t> file, std::size_t p);

// Decodes every image from its offset, with progress between images.
void DecodeImages(std::span<const std::uint8_t> file, const EntryOffsets& offsets, IconSet& set,
                  IProgressSink& progress);

// Re-marks as 8-bit every 4-bit image that uses a colour outside the sixteen; true when
// any image changed.
bool ConvertNonStandard16Images(IconSet& set);

// Takes the set's hotspot from the first directory entry of a cursor file.
void ReadCursorHotspot(std::span<const std::uint8_t> file, IconSet& set);

}  // namespace iw::detail
