#pragma once
// Reading icon, cursor and animated cursor files into the icon set.
//
// Files whose name ends in "ICO" (any case) are read through their directory; every other
// name goes to the salvage reader, which finds the images by scanning the whole file for
// bitmap headers. A cursor then gets the set's hotspot from its first directory entry.

#include <cstdint>
#include <span>
#include <string>

#include "document/model/IconSet.h"
#include "services/core/CoreContext.h"

namespace iw {

enum class IconReadStatus {
    Ok,
    Unreadable,        // the file could not be opened or read
    EmptyFile,         // length 0
    TooLarge,          // beyond what the reader will load into memory
    BadHeader,         // reserved not 0, type not 1 or no entries
    NoEntries,         // the directory yielded no image
    NoBitmapHeaders,   // the salvage scan found no image
    AnimationCorrupt,  // an animated cursor whose chunks cannot be walked
};

struct IconReadResult {
    IconReadStatus status = IconReadStatus::Ok;
    // Some 4-bit images used colours outside the sixteen and were re-marked as 8-bit.
    bool nonStandard16Converted = false;
    bool Ok() const { return status == IconReadStatus::Ok; }
};

// The reader's limits. A file longer than maxFileBytes is refused before it is loaded.
struct IconReadLimits {
    std::uint64_t maxFileBytes = 512ull << 20;
};

// Fills `set` from a whole file already in memory; `path` supplies the extension and thereby
// the reader and the set's mode. Reports progress ("Loading icon 3 of 12.") and yields
// between images; shows no messages. On failure the set is left empty.
IconReadResult ReadIconData(std::span<const std::uint8_t> FileBytes, const std::string& path,
                            IconSet& set, IProgressSink& progress);

// The entry point: reads the file at `path` whole, fills `set`, and tells the user about a
// failure (renamed picture or corrupt file, with the path) or about re-marked 16-colour
// images. Returns true on success.
bool ReadIconFile(const std::string& path, IconSet& set, CoreContext& context,
                  const IconReadLimits& limits = {});

}  // namespace iw
