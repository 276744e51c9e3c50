#include "document/io/IconFileWriter.h"

#include "document/io/BitmapEncoder.h"
#include "document/io/IcoLayout.h"
#include "document/io/PngEntryDecoder.h"
#include "document/io/PngEntryEncoder.h"
#include "services/core/AtomicFile.h"
#include "services/core/TextCatalog.h"

namespace iw {
namespace {

using Bytes = std::vector<std::uint8_t>;

void Append16(Bytes& out, std::uint32_t v) {
    out.push_back(static_cast<std::uint8_t>(v));
    out.push_back(static_cast<std::uint8_t>(v >> 8));
}

void Append32(Bytes& out, std::uint32_t v) {
    for (int i = 0; i < 4; ++i)
        out.push_back(static_cast<std::uint8_t>(v >> (8 * i)));
}

void AppendBytes(Bytes& out, const Bytes& bytes) {
    out.insert(out.end(), bytes.begin(), bytes.end());
}

Bytes FileHeader(std::uint16_t type, std::uint16_t count) {
    Bytes header;
    Append16(header, 0);
    Append16(header, type);
    Append16(header, count);
    return header;
}

// A 256-pixel side is written as 0.
std::uint8_t SideByte(int side) {
    return side < 256 ? static_cast<std::uint8_t>(side) : 0;
}

std::uint8_t ColorCountFor(int bitCount) {
    if (bitCount == 1) return 2;
    if (bitCount == 4) return 16;
    return 0;
}

// A PNG stream's directory entry gives the stream's own sides: field 0 is its width.
EncodedEntry PngEntry(const IconImage& image, Bytes stream) {
    EncodedEntry entry;
    const std::optional<PngSides> sides = ReadPngEntrySides(stream);
    entry.width = sides ? sides->width : image.info.Width();
    entry.height = sides ? sides->height : image.info.Height();
    entry.bitCount = image.info.bitCount;
    entry.data = std::move(stream);
    return entry;
}

bool AllWritable(const IconSet& set) {
    for (int i = 0; i < set.Count(); ++i) {
        if (!CanWriteImage(set.Info(i))) return false;
    }
    return true;
}

bool WriteWhole(const std::string& path, const std::optional<Bytes>& bytes) {
    if (!bytes) return false;
    AtomicFile file;
    return file.Open(path) && file.Write(bytes->data(), bytes->size()) && file.Commit();
}

}  // namespace

bool CanWriteImage(const IconInfo& info) {
    return info.widthMinus1 >= 0 && info.widthMinus1 < IconSet::kMaxSide &&
           info.heightMinus1 >= 0 && info.heightMinus1 < IconSet::kMaxSide &&
           ico::IsSupportedBitCount(info.bitCount);
}

std::vector<std::uint8_t> EncodeDirectoryEntry(const EncodedEntry& encoded,
                                               std::uint32_t bytesInResource,
                                               std::uint32_t imageOffset,
                                               const DirectoryFields& fields) {
    Bytes entry;
    entry.reserve(ico::kEntrySize);
    entry.push_back(SideByte(encoded.width));
    entry.push_back(SideByte(encoded.height));
    // The cursor writer works out the colour count too, and then writes 0 over it.
    std::uint8_t colorCount = ColorCountFor(encoded.bitCount);
    if (fields.cursor) colorCount = 0;
    entry.push_back(colorCount);
    entry.push_back(0);
    Append16(entry, fields.cursor ? fields.hotspotX : 1u);
    Append16(entry, fields.cursor ? fields.hotspotY : static_cast<std::uint16_t>(encoded.bitCount));
    Append32(entry, bytesInResource);
    Append32(entry, imageOffset);
    return entry;
}

std::optional<EncodedEntry> EncodeEntry(const IconSet& set, int index, EntryTarget target,
                                        CoreContext& context) {
    const IconImage& image = set.Image(index);
    if (!CanWriteImage(image.info)) return std::nullopt;
    if (image.info.png && target == EntryTarget::Icon) {
        context.log.AddLogEntry("I_AI");
        Bytes stream = EncodePngEntry(image);
        if (stream.empty()) return std::nullopt;
        return PngEntry(image, std::move(stream));
    }
    const int bitCount = image.info.png ? 32 : image.info.bitCount;
    context.log.AddLogEntry("IC_I:" + std::to_string(index));
    context.log.AddLogEntry("IC_C:" + std::to_string(bitCount));
    const BitmapGeometry geometry = GeometryFor(image.info, bitCount);
    EncodedEntry entry;
    entry.data = EncodeBitmapData(image, geometry, index, context.progress);
    context.progress.SetStatus(GetText(texts::AddingSecondHeader) + std::to_string(index));
    entry.header = EncodeBitmapHeader(geometry);
    entry.width = geometry.width;
    entry.height = geometry.height;
    entry.bitCount = bitCount;
    return entry;
}

std::optional<std::vector<std::uint8_t>> EncodeIconFile(const IconSet& set, CoreContext& context) {
    if (!AllWritable(set)) return std::nullopt;
    const int count = set.Count();
    std::vector<EncodedEntry> entries(static_cast<std::size_t>(count));

    // PNG streams are built first: their lengths go into the directory.
    context.log.AddLogEntry("I_OD");
    for (int i = 0; i < count; ++i) {
        const IconImage& image = set.Image(i);
        if (!image.info.png) continue;
        Bytes stream = EncodePngEntry(image);
        if (stream.empty()) return std::nullopt;
        entries[static_cast<std::size_t>(i)] = PngEntry(image, std::move(stream));
    }

    Bytes out = FileHeader(ico::kTypeIcon, static_cast<std::uint16_t>(count));
    context.log.AddLogEntry("I_HD");
    std::uint32_t offset = static_cast<std::uint32_t>(ico::kHeaderSize + ico::kEntrySize * count);
    for (int i = 0; i < count; ++i) {
        EncodedEntry& entry = entries[static_cast<std::size_t>(i)];
        std::uint32_t bytes = static_cast<std::uint32_t>(entry.Size());
        if (!set.Info(i).png) {
            // Only the layout is needed yet: the pixels are encoded below.
            const BitmapGeometry geometry = GeometryFor(set.Info(i), set.Info(i).bitCount);
            entry.width = geometry.width;
            entry.height = geometry.height;
            entry.bitCount = geometry.bitCount;
            bytes = static_cast<std::uint32_t>(geometry.EntryBytes());
        }
        context.progress.SetStatus(GetText(texts::AddingPrimaryHeader) + std::to_string(i));
        AppendBytes(out, EncodeDirectoryEntry(entry, bytes, offset, {}));
        offset += bytes;
    }

    context.log.AddLogEntry("I_HF");
    for (int i = 0; i < count; ++i) {
        if (set.Info(i).png) {
            context.log.AddLogEntry("I_AI");
            AppendBytes(out, entries[static_cast<std::size_t>(i)].data);
        } else {
            const std::optional<EncodedEntry> entry =
                EncodeEntry(set, i, EntryTarget::Icon, context);
            if (!entry) return std::nullopt;
            AppendBytes(out, entry->header);
            AppendBytes(out, entry->data);
        }
        context.progress.SetProgress(i + 1, count);
        context.progress.Yield();
    }
    context.log.AddLogEntry("I_FS");
    context.progress.SetStatus("");
    return out;
}

bool WriteIconFile(const std::string& path, const IconSet& set, CoreContext& context) {
    context.log.AddLogEntry("I_ST");
    return WriteWhole(path, EncodeIconFile(set, context));
}

std::optional<std::vector<std::uint8_t>> BuildCursorFile(const IconSet& set, int index,
                                                         int hotspotX, int hotspotY,
                                                         CoreContext& context) {
    if (index < 0 || index >= set.Count()) return std::nullopt;
    std::optional<EncodedEntry> encoded = EncodeEntry(set, index, EntryTarget::Cursor, context);
    if (!encoded) return std::nullopt;
    Bytes out = FileHeader(ico::kTypeCursor, 1);
    DirectoryFields fields{true, static_cast<std::uint16_t>(hotspotX),
                           static_cast<std::uint16_t>(hotspotY)};
    AppendBytes(out, EncodeDirectoryEntry(*encoded, static_cast<std::uint32_t>(encoded->Size()),
                                          ico::kHeaderSize + ico::kEntrySize, fields));
    AppendBytes(out, encoded->header);
    AppendBytes(out, encoded->data);
    return out;
}

bool WriteCursorFile(const std::string& path, const IconSet& set, int index, int hotspotX,
                     int hotspotY, CoreContext& context) {
    const bool ok = WriteWhole(path, BuildCursorFile(set, index, hotspotX, hotspotY, context));
    context.progress.SetStatus("");
    return ok;
}

}  // namespace iw
