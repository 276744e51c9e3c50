#pragma once
// Reading icon, cursor and animated cursor files into the icon set.
//
// A Windows program or library (a PE image) that carries icon or cursor groups gives one
// of its groups (ProgramIcons.h): by default the first icon group, the one a file manager
// shows. Any other file whose name ends in "ICO" (any case) is read through its directory;
// every other name goes to the salvage reader, which finds the images by scanning the
// whole file for bitmap headers (a program without groups among them). A cursor then gets
// the set's hotspot from its first directory entry.

#include <cstdint>
#include <optional>
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
    NoSuchGroup,       // a program's group was asked for that it does not have
};

struct IconReadResult {
    IconReadStatus status = IconReadStatus::Ok;
    // Some 4-bit images used colours outside the sixteen and were re-marked as 8-bit.
    bool nonStandard16Converted = false;
    // The file is a Windows program or library: it is never written back, the set is saved
    // as an icon file elsewhere.
    bool program = false;
    bool Ok() const { return status == IconReadStatus::Ok; }
};

// The reader's limits. A file longer than maxFileBytes is refused before it is loaded.
struct IconReadLimits {
    std::uint64_t maxFileBytes = 512ull << 20;
};

// Which group of a program to read: an index into ProgramIconTable::Groups() (-1: the first
// icon group, else the first cursor group, else the salvage reader), and a language (the
// group's first when not given or not there). Files that are no programs ignore it.
struct GroupChoice {
    int group = -1;
    std::optional<std::uint16_t> language;
};

// Fills `set` from a whole file already in memory; `path` supplies the extension and thereby
// the reader and the set's mode. Reports progress ("Loading icon 3 of 12.") and yields
// between images; shows no messages. On failure the set is left empty.
IconReadResult ReadIconData(std::span<const std::uint8_t> FileBytes, const std::string& path,
                            IconSet& set, IProgressSink& progress, const GroupChoice& choice = {});

// The entry point: reads the file at `path` whole, fills `set`, and tells the user about a
// failure (renamed picture or corrupt file, with the path) or about re-marked 16-colour
// images. Returns true on success.
bool ReadIconFile(const std::string& path, IconSet& set, CoreContext& context,
                  const IconReadLimits& limits = {});
// The same for group `choice` of a program (any other file reads as above).
bool ReadIconFile(const std::string& path, const GroupChoice& choice, IconSet& set,
                  CoreContext& context, const IconReadLimits& limits = {});

}  // namespace iw
