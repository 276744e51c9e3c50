#pragma once
// The icons and cursors a Windows program or library (.exe, .dll, .ocx, .cpl, .scr, .icl;
// PE images of 32 and 64 bits, and the NE images of 16-bit Windows) carries as resources: its icon
// groups (RT_GROUP_ICON, each listing RT_ICON images by number) and cursor groups (RT_GROUP_CURSOR,
// listing RT_CURSOR images whose data starts with the hotspot's two 16-bit words).
//
//   group directory   reserved 0 | type 1 icon, 2 cursor | count
//   entries (14)      icon:   width | height | colour count | reserved (bytes), planes,
//                             bit count (16 bits each), bytes in resource (32), number (16)
//                     cursor: width, height (16 bits each, the height often doubled),
//                             planes, bit count, bytes in resource, number
//
// An image's data is an icon file entry's data (a bitmap or a PNG stream), so a group reads
// into the icon set exactly as an ".ico" file does: the same decoders, PNG entries decoded
// on demand, the 16-colour check. An image whose data cannot be found stays blank at the
// group directory's sides, as an icon file entry whose data is missing does.

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "document/io/IconFileReader.h"
#include "document/io/PeResources.h"

namespace iw {

enum class ResourceGroupKind { Icon, Cursor };

// One image of a group as it will read: the sides (x extent, then y extent), depth and
// storage that the reader gives it.
struct ResourceImageSummary {
    int width = 0;
    int height = 0;
    int bitCount = 0;
    bool png = false;
    bool present = false;  // its data was found in the file
    int hotspotX = 0;      // cursors
    int hotspotY = 0;
};

struct ResourceGroup {
    ResourceGroupKind kind = ResourceGroupKind::Icon;
    pe::ResourceName name;
    std::uint16_t language = 0;            // the language described below
    std::vector<std::uint16_t> languages;  // every language the group comes in, table order
    std::vector<ResourceImageSummary> images;
};

// The icon and cursor groups of one program file.
class ProgramIconTable {
  public:
    // Nothing when `file` is no PE or NE image. An image without a resource table, or
    // whose table is refused as unsound (Refused()), has no groups.
    static std::optional<ProgramIconTable> Read(std::span<const std::uint8_t> file);

    // Icon groups first, then cursor groups, each in table order, each in its first language.
    const std::vector<ResourceGroup>& Groups() const { return groups_; }
    bool Refused() const { return refused_; }
    // The group a file manager shows: the first icon group, else the first cursor group;
    // -1 when there is none.
    int FirstGroup() const { return groups_.empty() ? -1 : 0; }
    // The group of `kind` whose name (number in decimal, or text, any case) is `name`; -1.
    int Find(ResourceGroupKind kind, const std::string& name) const;

    // Group `index` as `language` has it (its first language when not given or absent).
    ResourceGroup Describe(std::span<const std::uint8_t> file, int index,
                           std::optional<std::uint16_t> language) const;
    // Fills the empty `set` with group `index` in `language` (as above): the images with
    // progress between them, the 16-colour check (its result in `result`), the mode (ICO
    // for an icon group, CUR for a cursor group) and a cursor's hotspot, from its first
    // image. NoSuchGroup for an index out of range, NoEntries when no image could be added.
    IconReadResult ReadGroup(std::span<const std::uint8_t> file, int index,
                             std::optional<std::uint16_t> language, IconSet& set,
                             IProgressSink& progress) const;

  private:
    std::vector<ResourceGroup> groups_;
    std::vector<pe::Resource> groupResources_;  // parallel to groups_
    // Every numbered RT_ICON and RT_CURSOR, by type (high 16 bits) and number.
    std::map<std::uint32_t, pe::Resource> images_;
    bool refused_ = false;
};

// True when `file` is a Windows program or library: a PE or an NE image.
bool LooksLikeProgram(std::span<const std::uint8_t> file);
// The same for the file at `path`, of which only the headers are read.
bool IsProgramFile(const std::string& path);

// A program file read whole, with its groups: what the group picker and the command line
// work on, reading one group after another without reading the file again.
class ProgramFile {
  public:
    // Nothing when the file cannot be read (or is longer than the limits allow) or is no
    // program. Shows nothing.
    static std::optional<ProgramFile> Open(const std::string& path,
                                           const IconReadLimits& limits = {});

    const std::string& Path() const { return path_; }
    const std::vector<ResourceGroup>& Groups() const { return table_.Groups(); }
    const ProgramIconTable& Table() const { return table_; }
    // Group `index` as `language` has it.
    ResourceGroup Describe(int index, std::optional<std::uint16_t> language) const {
        return table_.Describe(bytes_, index, language);
    }
    // Fills `set` with group `index` in `language` as ReadIconFile does, telling the user
    // about a failure or about re-marked 16-colour images. True on success.
    bool ReadGroup(int index, std::optional<std::uint16_t> language, IconSet& set,
                   CoreContext& context) const;

  private:
    ProgramFile(std::string path, std::vector<std::uint8_t> bytes, ProgramIconTable table)
        : path_(std::move(path)), bytes_(std::move(bytes)), table_(std::move(table)) {}
    std::string path_;
    std::vector<std::uint8_t> bytes_;
    ProgramIconTable table_;
};

}  // namespace iw
