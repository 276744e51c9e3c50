#pragma once
// Writing the icon set as an icon file (every image) or a cursor file (one image with the
// hotspot). The file is replaced whole and only when everything was written: a failure
// leaves the previous file as it was.

#include <cstdint>
#include <string>
#include <vector>

#include "document/model/IconSet.h"
#include "services/core/CoreContext.h"

namespace iw {

// One image as it is stored: the 40-byte bitmap header and the data after it (palette,
// colour and mask rows), or no header and a PNG stream.
struct EncodedEntry {
    std::vector<std::uint8_t> header;
    std::vector<std::uint8_t> data;
    std::size_t Size() const { return header.size() + data.size(); }
};

// Encodes image `index` by its bit count, or as PNG when its field 4 is set. Logs
// "I_AI", or "IC_I:" and "IC_C:" with the index and bit count, and shows the status texts.
EncodedEntry EncodeEntry(const IconSet& set, int index, CoreContext& context);

// The 16-byte directory entry. For icons bytes 4 and 6 hold planes 1 and the bit count;
// for cursors the hotspot, and the colour count byte is 0.
struct DirectoryFields {
    bool cursor = false;
    std::uint16_t hotspotX = 0;
    std::uint16_t hotspotY = 0;
};
std::vector<std::uint8_t> EncodeDirectoryEntry(const IconInfo& info, std::uint32_t bytesInResource,
                                               std::uint32_t imageOffset,
                                               const DirectoryFields& fields);

// The whole ICO file of every image of the set.
bool WriteIconFile(const std::string& path, const IconSet& set, CoreContext& context);

// A one-image cursor file: header type 2, one entry with the hotspot, data at offset 22.
bool WriteCursorFile(const std::string& path, const IconSet& set, int index, int hotspotX,
                     int hotspotY, CoreContext& context);
std::vector<std::uint8_t> BuildCursorFile(const IconSet& set, int index, int hotspotX, int hotspotY,
                                          CoreContext& context);

}  // namespace iw
