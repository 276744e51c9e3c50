#include "document/io/ProgramIcons.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <map>

#include "document/io/BitmapDecoder.h"
#include "document/io/IcoLayout.h"
#include "document/io/IconReaderSteps.h"
#include "document/io/NeResources.h"
#include "document/io/PngEntryDecoder.h"
#include "services/core/CheckedBytes.h"

namespace iw {
namespace {

constexpr std::size_t kGroupHeaderSize = 6;
constexpr std::size_t kGroupEntrySize = 14;
constexpr std::size_t kHotspotSize = 4;  // before a cursor image's bitmap or PNG stream
constexpr std::uint64_t kMissing = ~std::uint64_t{0};

// One entry of a group directory.
struct GroupEntry {
    int width = 0;
    int height = 0;
    int bitCount = 0;
    std::uint16_t number = 0;
};

int SideFromByte(std::uint8_t value) {
    return value == 0 ? 256 : value;
}

int SideFromWord(int value) {
    return std::clamp(value == 0 ? 256 : value, 1, 256);
}

// The entries of a group directory; nothing when it is no directory of that kind. Entries
// cut off by the end of the data end the directory; at most 175 are taken.
std::optional<std::vector<GroupEntry>> ParseGroupDirectory(std::span<const std::uint8_t> data,
                                                           ResourceGroupKind kind) {
    if (data.size() < kGroupHeaderSize) return std::nullopt;
    const std::uint16_t type = kind == ResourceGroupKind::Icon ? ico::kTypeIcon : ico::kTypeCursor;
    if (LoadLE16(data.data()) != 0 || LoadLE16(data.data() + 2) != type) return std::nullopt;
    const std::size_t count = std::min<std::size_t>(LoadLE16(data.data() + 4), IconSet::kMaxImages);
    std::vector<GroupEntry> entries;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = kGroupHeaderSize + i * kGroupEntrySize;
        if (!RangeFits(at, kGroupEntrySize, data.size())) break;
        const std::uint8_t* e = data.data() + at;
        GroupEntry entry;
        if (kind == ResourceGroupKind::Icon) {
            entry.width = SideFromByte(e[0]);
            entry.height = SideFromByte(e[1]);
        } else {
            // Resource compilers write a cursor's height as its bitmap header has it, twice
            // the image's.
            const int width = LoadLE16(e), height = LoadLE16(e + 2);
            entry.width = SideFromWord(width);
            entry.height = SideFromWord(height == 2 * width ? width : height);
        }
        entry.bitCount = e[6];  // the low byte, as an icon file's directory is read
        entry.number = LoadLE16(e + 12);
        entries.push_back(entry);
    }
    if (entries.empty()) return std::nullopt;
    return entries;
}

// Where one image's bitmap or PNG stream lies, and a cursor's hotspot.
struct ImageLocation {
    std::uint64_t offset = kMissing;
    std::uint64_t size = 0;
    int hotspotX = 0;
    int hotspotY = 0;
};

const pe::ResourceData* LanguageOf(const pe::Resource& resource,
                                   std::optional<std::uint16_t> language) {
    if (language) {
        for (const pe::ResourceData& data : resource.languages) {
            if (data.language == *language) return &data;
        }
    }
    return &resource.languages.front();
}

std::span<const std::uint8_t> DataOf(std::span<const std::uint8_t> file,
                                     const pe::ResourceData& data) {
    if (!data.fileOffset) return {};
    return file.subspan(static_cast<std::size_t>(*data.fileOffset), data.size);
}

// What the reader makes of the image at `at`, without decoding its pixels.
ResourceImageSummary Summarize(std::span<const std::uint8_t> file, const GroupEntry& entry,
                               const ImageLocation& at) {
    ResourceImageSummary s;
    // As an entry that cannot be decoded: blank, 32 bits, the directory's sides crossed.
    s.width = entry.height;
    s.height = entry.width;
    s.bitCount = 32;
    s.hotspotX = at.hotspotX;
    s.hotspotY = at.hotspotY;
    if (at.offset >= file.size()) return s;
    s.present = true;
    // The tests of the image decoding, in its order: a bitmap header is read from the file
    // whatever the size given, a PNG stream only within it.
    const auto offset = static_cast<std::size_t>(at.offset);
    if (file[offset] == ico::kBitmapHeaderSize) {
        if (!RangeFits(offset, ico::kBitmapHeaderSize, file.size())) return s;
        const std::uint8_t* header = file.data() + offset;
        const auto width = static_cast<std::int32_t>(LoadLE32(header + ico::kBmpWidth));
        const auto height = static_cast<std::int32_t>(LoadLE32(header + ico::kBmpHeight));
        if (!BitmapSidesFit(width, height)) return s;
        s.width = width;
        s.height = HalvedBitmapHeight(height);
        if (ico::IsSupportedBitCount(header[ico::kBmpBitCount])) {
            s.bitCount = header[ico::kBmpBitCount];
        }
    } else if (const std::optional<PngSides> sides = ReadPngEntrySides(
                   file.subspan(offset, static_cast<std::size_t>(std::min<std::uint64_t>(
                                            at.size, file.size() - offset))))) {
        s.width = sides->width;
        s.height = sides->height;
        s.png = true;
    }
    return s;
}

bool SameName(const pe::ResourceName& name, const std::string& wanted) {
    const std::string shown = name.Display();
    return std::equal(shown.begin(), shown.end(), wanted.begin(), wanted.end(), [](char a, char b) {
        return std::toupper(static_cast<unsigned char>(a)) ==
               std::toupper(static_cast<unsigned char>(b));
    });
}

std::uint32_t ImageKey(std::uint16_t type, std::uint16_t number) {
    return (std::uint32_t{type} << 16) | number;
}

// A group's images, found by number (and language) among the program's images.
class GroupImages {
  public:
    GroupImages(std::span<const std::uint8_t> file,
                const std::map<std::uint32_t, pe::Resource>& images)
        : file_(file), images_(images) {}

    ImageLocation Locate(ResourceGroupKind kind, std::uint16_t number,
                         std::uint16_t language) const {
        ImageLocation at;
        const std::uint16_t type = kind == ResourceGroupKind::Icon ? pe::kRtIcon : pe::kRtCursor;
        const auto found = images_.find(ImageKey(type, number));
        if (found == images_.end()) return at;
        const std::span<const std::uint8_t> data =
            DataOf(file_, *LanguageOf(found->second, language));
        if (data.empty()) return at;
        const std::uint64_t offset = static_cast<std::uint64_t>(data.data() - file_.data());
        if (kind == ResourceGroupKind::Icon) {
            at.offset = offset;
            at.size = data.size();
        } else if (data.size() > kHotspotSize) {
            at.hotspotX = LoadLE16(data.data());
            at.hotspotY = LoadLE16(data.data() + 2);
            at.offset = offset + kHotspotSize;
            at.size = data.size() - kHotspotSize;
        }
        return at;
    }

  private:
    std::span<const std::uint8_t> file_;
    const std::map<std::uint32_t, pe::Resource>& images_;
};

ResourceGroupKind KindOf(const pe::Resource& group) {
    return group.type == pe::kRtGroupIcon ? ResourceGroupKind::Icon : ResourceGroupKind::Cursor;
}

// The group directory of `group` in `language`; nothing when it cannot be read.
std::optional<std::vector<GroupEntry>> EntriesOf(std::span<const std::uint8_t> file,
                                                 const pe::Resource& group,
                                                 std::optional<std::uint16_t> language,
                                                 std::uint16_t& chosen) {
    const pe::ResourceData* data = LanguageOf(group, language);
    chosen = data->language;
    return ParseGroupDirectory(DataOf(file, *data), KindOf(group));
}

}  // namespace

std::optional<ProgramIconTable> ProgramIconTable::Read(std::span<const std::uint8_t> file) {
    static constexpr std::array<std::uint16_t, 4> kTypes{pe::kRtCursor, pe::kRtIcon,
                                                         pe::kRtGroupCursor, pe::kRtGroupIcon};
    std::optional<std::vector<pe::Resource>> resources;
    if (const std::optional<pe::ImageHeaders> headers = pe::ReadImageHeaders(file)) {
        resources = pe::ReadResources(file, *headers, kTypes);
    } else if (ne::LooksLikeNeImage(file)) {
        resources = ne::ReadResources(file, kTypes);
    } else {
        return std::nullopt;
    }
    ProgramIconTable table;
    if (!resources) {
        table.refused_ = true;
        return table;
    }
    for (pe::Resource& resource : *resources) {
        if ((resource.type == pe::kRtIcon || resource.type == pe::kRtCursor) &&
            !resource.name.isText) {
            table.images_.emplace(ImageKey(resource.type, resource.name.number),
                                  std::move(resource));
        }
    }
    // Icon groups first: they are what a program shows.
    for (std::uint16_t type : {pe::kRtGroupIcon, pe::kRtGroupCursor}) {
        for (pe::Resource& resource : *resources) {
            if (resource.type != type) continue;
            table.groupResources_.push_back(std::move(resource));
            table.groups_.push_back(
                table.Describe(file, static_cast<int>(table.groupResources_.size()) - 1, {}));
            // A group whose directory cannot be read is no group.
            if (table.groups_.back().images.empty()) {
                table.groups_.pop_back();
                table.groupResources_.pop_back();
            }
        }
    }
    return table;
}

int ProgramIconTable::Find(ResourceGroupKind kind, const std::string& name) const {
    for (std::size_t i = 0; i < groups_.size(); ++i) {
        if (groups_[i].kind == kind && SameName(groups_[i].name, name)) return static_cast<int>(i);
    }
    return -1;
}

ResourceGroup ProgramIconTable::Describe(std::span<const std::uint8_t> file, int index,
                                         std::optional<std::uint16_t> language) const {
    const pe::Resource& resource = groupResources_.at(static_cast<std::size_t>(index));
    ResourceGroup group;
    group.kind = KindOf(resource);
    group.name = resource.name;
    for (const pe::ResourceData& data : resource.languages)
        group.languages.push_back(data.language);
    const std::optional<std::vector<GroupEntry>> entries =
        EntriesOf(file, resource, language, group.language);
    if (!entries) return group;
    const GroupImages images(file, images_);
    for (const GroupEntry& entry : *entries) {
        group.images.push_back(
            Summarize(file, entry, images.Locate(group.kind, entry.number, group.language)));
    }
    return group;
}

IconReadResult ProgramIconTable::ReadGroup(std::span<const std::uint8_t> file, int index,
                                           std::optional<std::uint16_t> language, IconSet& set,
                                           IProgressSink& progress) const {
    IconReadResult result;
    if (index < 0 || static_cast<std::size_t>(index) >= groups_.size()) {
        result.status = IconReadStatus::NoSuchGroup;
        return result;
    }
    const pe::Resource& resource = groupResources_[static_cast<std::size_t>(index)];
    const ResourceGroupKind kind = KindOf(resource);
    std::uint16_t chosen = 0;
    const std::optional<std::vector<GroupEntry>> entries =
        EntriesOf(file, resource, language, chosen);
    if (!entries) {
        result.status = IconReadStatus::NoEntries;
        return result;
    }
    const GroupImages images(file, images_);
    detail::EntryTable table;
    std::optional<ImageLocation> first;
    for (const GroupEntry& entry : *entries) {
        const ImageLocation at = images.Locate(kind, entry.number, chosen);
        if (!first) first = at;
        set.AddIcon(entry.height - 1, entry.width - 1, entry.bitCount);
        table.Add(at.offset, at.size);
    }
    detail::DecodeImages(file, table, set, progress);
    result.nonStandard16Converted = detail::ConvertNonStandard16Images(set);
    result.program = true;
    set.mode = kind == ResourceGroupKind::Icon ? FileMode::ICO : FileMode::CUR;
    if (kind == ResourceGroupKind::Cursor) {
        set.properties.hotspotX = static_cast<std::int16_t>(first->hotspotX);
        set.properties.hotspotY = static_cast<std::int16_t>(first->hotspotY);
    }
    return result;
}

bool IsProgramFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::vector<std::uint8_t> head(64);
    if (!in.read(reinterpret_cast<char*>(head.data()), static_cast<std::streamsize>(head.size())))
        return false;
    const std::optional<std::uint32_t> offset = pe::PeHeaderOffset(head);
    if (!offset) return false;
    // PE: the signature, the COFF header and the magic; NE: its header to 0x28.
    std::vector<std::uint8_t> header(0x28);
    in.seekg(*offset);
    in.read(reinterpret_cast<char*>(header.data()), static_cast<std::streamsize>(header.size()));
    header.resize(static_cast<std::size_t>(in.gcount()));
    return pe::IsPeHeader(header) || ne::IsNeHeader(header);
}

bool LooksLikeProgram(std::span<const std::uint8_t> file) {
    return pe::LooksLikePeImage(file) || ne::LooksLikeNeImage(file);
}

std::optional<ProgramFile> ProgramFile::Open(const std::string& path,
                                             const IconReadLimits& limits) {
    std::vector<std::uint8_t> bytes;
    if (detail::LoadWholeFile(path, limits, bytes) != IconReadStatus::Ok) return std::nullopt;
    std::optional<ProgramIconTable> table = ProgramIconTable::Read(bytes);
    if (!table) return std::nullopt;
    return ProgramFile(path, std::move(bytes), std::move(*table));
}

bool ProgramFile::ReadGroup(int index, std::optional<std::uint16_t> language, IconSet& set,
                            CoreContext& context) const {
    const IconReadResult result =
        ReadIconData(bytes_, path_, set, context.progress, GroupChoice{index, language});
    return detail::FinishRead(result, bytes_, path_, set, context);
}

}  // namespace iw
