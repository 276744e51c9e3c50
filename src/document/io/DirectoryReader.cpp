#include <algorithm>

#include "document/io/IcoLayout.h"
#include "document/io/IconReaderSteps.h"
#include "services/core/CheckedBytes.h"

namespace iw::detail {
namespace {

int SideFromByte(std::uint8_t value) {
    return value == 0 ? 256 : value;
}

}  // namespace

IconReadStatus ReadDirectory(std::span<const std::uint8_t> FileBytes, IconSet& set,
                             EntryTable& entries) {
    if (FileBytes.size() < ico::kHeaderSize) return IconReadStatus::BadHeader;
    const std::uint16_t reserved = LoadLE16(FileBytes.data());
    const std::uint16_t type = LoadLE16(FileBytes.data() + 2);
    const std::uint16_t count = LoadLE16(FileBytes.data() + 4);
    if (reserved != 0 || type != ico::kTypeIcon || count == 0) return IconReadStatus::BadHeader;

    const std::size_t most = std::min<std::size_t>(count, IconSet::kMaxImages);
    entries.EntryOffset.reserve(most);
    entries.EntrySize.reserve(most);
    std::size_t position = ico::kHeaderSize;
    for (unsigned slot = 0; slot < count && !set.Full(); ++slot) {
        // An entry cut off by the end of the file ends the directory.
        if (!RangeFits(position, ico::kEntrySize, FileBytes.size())) break;
        const std::uint8_t* entry = FileBytes.data() + position;
        // A slot whose reserved byte is not 0 is skipped without moving on, so every later
        // slot meets the same entry and is skipped as well: the directory ends here.
        if (entry[ico::kEntryReserved] != 0) break;
        const int width = SideFromByte(entry[ico::kEntryWidth]);
        const int height = SideFromByte(entry[ico::kEntryHeight]);
        const int bitCount = entry[ico::kEntryBitCountOrHotspotY];  // low byte only
        set.AddIcon(height - 1, width - 1, bitCount);
        entries.Add(LoadLE32(entry + ico::kEntryImageOffset),
                    LoadLE32(entry + ico::kEntryBytesInResource));
        position += ico::kEntrySize;
    }
    return set.Empty() ? IconReadStatus::NoEntries : IconReadStatus::Ok;
}

void ReadCursorHotspot(std::span<const std::uint8_t> FileBytes, IconSet& set) {
    if (!RangeFits(0, ico::kHeaderSize + ico::kEntrySize, FileBytes.size())) return;
    const std::uint8_t* entry = FileBytes.data() + ico::kHeaderSize;
    set.properties.hotspotX =
        static_cast<std::int16_t>(LoadLE16(entry + ico::kEntryPlanesOrHotspotX));
    set.properties.hotspotY =
        static_cast<std::int16_t>(LoadLE16(entry + ico::kEntryBitCountOrHotspotY));
}

}  // namespace iw::detail
