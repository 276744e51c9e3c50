#pragma once
// Writing the icon set as an icon file (every image) or a cursor file (one image with the
// hotspot). The file is replaced whole and only when everything was written: a failure
// leaves the previous file as it was.
//
// The writers trust no field: an image whose sides are not 1 to 256 or whose bit count is
// not 1, 4, 8, 24 or 32 makes the save fail before anything is written.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "document/model/IconSet.h"
#include "services/core/CoreContext.h"

namespace iw {

// True when the writers can write an image with these fields.
bool CanWriteImage(const IconInfo& info);

// What an image is written into: an icon file stores PNG-flagged images as PNG streams;
// a cursor file (and every frame of an animated cursor) stores them as 32-bit bitmaps,
// which the cursor reader's scan finds.
enum class EntryTarget { Icon, Cursor };

// One image as it is stored: the 40-byte bitmap header and the data after it (palette,
// colour and mask rows), or no header and a PNG stream; and the fields its directory entry
// gives.
struct EncodedEntry {
    std::vector<std::uint8_t> header;
    std::vector<std::uint8_t> data;
    int width = 0;  // a bitmap: field 1 + 1 (the sides cross); a PNG stream: its own IHDR's
    int height = 0;
    int bitCount = 0;
    std::size_t Size() const { return header.size() + data.size(); }
};

// Encodes image `index` by its bit count, or as PNG when its field 4 is set and the target
// is an icon. Logs "I_AI", or "IC_I:" and "IC_C:" with the index and the bit count
// written, and shows the status texts. Nothing when the image cannot be written.
std::optional<EncodedEntry> EncodeEntry(const IconSet& set, int index, EntryTarget target,
                                        CoreContext& context);

// The 16-byte directory entry of `entry` (its sides and bit count; its data need not be
// there yet). For icons bytes 4 and 6 hold planes 1 and the bit count; for cursors the
// hotspot, and the colour count byte is 0.
struct DirectoryFields {
    bool cursor = false;
    std::uint16_t hotspotX = 0;
    std::uint16_t hotspotY = 0;
};
std::vector<std::uint8_t> EncodeDirectoryEntry(const EncodedEntry& entry,
                                               std::uint32_t bytesInResource,
                                               std::uint32_t imageOffset,
                                               const DirectoryFields& fields);

// The whole ICO file of every image of the set, in memory; nothing when an image cannot be
// written.
std::optional<std::vector<std::uint8_t>> EncodeIconFile(const IconSet& set, CoreContext& context);
bool WriteIconFile(const std::string& path, const IconSet& set, CoreContext& context);

// A one-image cursor file: header type 2, one entry with the hotspot, data at offset 22.
bool WriteCursorFile(const std::string& path, const IconSet& set, int index, int hotspotX,
                     int hotspotY, CoreContext& context);
std::optional<std::vector<std::uint8_t>> BuildCursorFile(const IconSet& set, int index,
                                                         int hotspotX, int hotspotY,
                                                         CoreContext& context);

}  // namespace iw
