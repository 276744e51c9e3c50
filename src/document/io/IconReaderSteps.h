#pragma once
// The steps the icon reader is built from; each works on the whole file in memory.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "document/io/IconFileReader.h"

namespace iw::detail {

// Where each accepted image's data lies, one element an image in image order: its byte
// offset in the file and its byte length as the directory gives them (the salvage reader
// knows only the start and takes the rest of the file). Kept only while a file is read;
// neither number is trusted: both are checked against the file.
struct EntryTable {
    std::vector<std::uint64_t> EntryOffset;
    std::vector<std::uint64_t> EntrySize;

    void Add(std::uint64_t offset, std::uint64_t size) {
        EntryOffset.push_back(offset);
        EntrySize.push_back(size);
    }
};

// Reads the file at `path` whole into `bytes`, refusing files longer than the limits allow.
IconReadStatus LoadWholeFile(const std::string& path, const IconReadLimits& limits,
                             std::vector<std::uint8_t>& bytes);

// What every read of a file ends with: on failure the set is emptied and the user told why
// (a renamed picture, or a corrupt file, with the path); on success about re-marked
// 16-colour images. Returns whether the read succeeded.
bool FinishRead(const IconReadResult& result, std::span<const std::uint8_t> FileBytes,
                const std::string& path, IconSet& set, CoreContext& context);

// Walks the ".ico" directory: adds one image per accepted entry (at most 175) with the
// entry's sides (field 0 from the height byte, field 1 from the width byte, 0 meaning 256)
// and bit count.
IconReadStatus ReadDirectory(std::span<const std::uint8_t> FileBytes, IconSet& set,
                             EntryTable& entries);

// Scans every byte position for a bitmap information header and adds one image per find.
IconReadStatus FindBitmapHeaders(std::span<const std::uint8_t> FileBytes, IconSet& set,
                                 EntryTable& entries);

// True when position `p` holds what the salvage reader takes for a bitmap header.
bool IsBitmapHeaderAt(std::span<const std::uint8_t> FileBytes, std::size_t p);

// Decodes every image from its offset, with progress between images. A bitmap is decoded
// at once; a PNG stream gets its sides from its IHDR and is decoded when its pixels are
// first needed. An image that cannot be decoded stays a blank 32-bit image.
void DecodeImages(std::span<const std::uint8_t> FileBytes, const EntryTable& entries, IconSet& set,
                  IProgressSink& progress);

// Re-marks as 8-bit every 4-bit image that uses a colour outside the sixteen; true when
// any image changed.
bool ConvertNonStandard16Images(IconSet& set);

// Takes the set's hotspot from the first directory entry of a cursor file.
void ReadCursorHotspot(std::span<const std::uint8_t> FileBytes, IconSet& set);

}  // namespace iw::detail
