#include "document/io/IconFileWriter.h"

#include "document/io/BitmapEncoder.h"
#include "document/io/IcoLayout.h"
#include "document/io/PngEntryEncoder.h"
#include "services/core/AtomicFile.h"
#include "services/core/TextCatalog.h"

namespace iw {
namespace {

void Append16(std::vector<std::uint8_t>& out, std::uint32_t v) {
    out.push_back(static_cast<std::uint8_t>(v));
    out.push_back(static_cast<std::uint8_t>(v >> 8));
}

void Append32(std::vector<std::uint8_t>& out, std::uint32_t v) {
    for (int i = 0; i < 4; ++i)
        out.push_back(static_cast<std::uint8_t>(v >> (8 * i)));
}

std::vector<std::uint8_t> FileHeader(std::uint16_t type, std::uint16_t count) {
    std::vector<std::uint8_t> header;
    Append16(header, 0);
    Append16(header, type);
    Append16(header, count);
    return header;
}

// A 256-pixel side is written as 0.
std::uint8_t SideByte(int sideMinus1) {
    return sideMinus1 < 255 ? static_cast<std::uint8_t>(sideMinus1 + 1) : 0;
}

std::uint8_t ColorCountFor(int bitCount) {
    if (bitCount == 1) return 2;
    if (bitCount == 4) return 16;
    return 0;
}

bool WriteEntry(AtomicFile& file, const EncodedEntry& entry) {
    return file.Write(entry.header.data(), entry.header.size()) &&
           file.Write(entry.data.data(), entry.data.size());
}

}  // namespace

std::vector<std::uint8_t> EncodeDirectoryEntry(const IconInfo& info, std::uint32_t bytesInResource,
                                               std::uint32_t imageOffset,
                                               const DirectoryFields& fields) {
    std::vector<std::uint8_t> entry;
    entry.reserve(ico::kEntrySize);
    entry.push_back(SideByte(info.heightMinus1));  // width: field 1
    entry.push_back(SideByte(info.widthMinus1));   // height: field 0
    // The cursor writer works out the colour count too, and then writes 0 over it.
    std::uint8_t colorCount = ColorCountFor(info.bitCount);
    if (fields.cursor) colorCount = 0;
    entry.push_back(colorCount);
    entry.push_back(0);
    Append16(entry, fields.cursor ? fields.hotspotX : 1u);
    Append16(entry, fields.cursor ? fields.hotspotY : static_cast<std::uint16_t>(info.bitCount));
    Append32(entry, bytesInResource);
    Append32(entry, imageOffset);
    return entry;
}

EncodedEntry EncodeEntry(const IconSet& set, int index, CoreContext& context) {
    const IconImage& image = set.Image(index);
    EncodedEntry entry;
    if (image.info.png) {
        context.log.AddLogEntry("I_AI");
        entry.data = EncodePngEntry(image);
        return entry;
    }
    context.log.AddLogEntry("IC_I:" + std::to_string(index));
    context.log.AddLogEntry("IC_C:" + std::to_string(image.info.bitCount));
    entry.data = EncodeBitmapData(image, index, context.progress);
    context.progress.SetStatus(GetText(texts::AddingSecondHeader) + std::to_string(index));
    entry.header = EncodeBitmapHeader(GeometryFor(image.info));
    return entry;
}

bool WriteIconFile(const std::string& path, const IconSet& set, CoreContext& context) {
    context.log.AddLogEntry("I_ST");
    AtomicFile file;
    if (!file.Open(path)) return false;
    const int count = set.Count();

    // PNG streams are built first: their lengths go into the directory.
    context.log.AddLogEntry("I_OD");
    std::vector<std::vector<std::uint8_t>> pngStreams(static_cast<std::size_t>(count));
    std::vector<std::uint32_t> sizes(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const IconImage& image = set.Image(i);
        if (image.info.png) {
            pngStreams[static_cast<std::size_t>(i)] = EncodePngEntry(image);
            if (pngStreams[static_cast<std::size_t>(i)].empty())
                return false;  // nothing is replaced
            sizes[static_cast<std::size_t>(i)] =
                static_cast<std::uint32_t>(pngStreams[static_cast<std::size_t>(i)].size());
        } else {
            sizes[static_cast<std::size_t>(i)] =
                static_cast<std::uint32_t>(GeometryFor(image.info).EntryBytes());
        }
    }

    file.Write(FileHeader(ico::kTypeIcon, static_cast<std::uint16_t>(count)).data(),
               ico::kHeaderSize);
    context.log.AddLogEntry("I_HD");
    std::uint32_t offset = static_cast<std::uint32_t>(ico::kHeaderSize + ico::kEntrySize * count);
    for (int i = 0; i < count; ++i) {
        auto entry =
            EncodeDirectoryEntry(set.Info(i), sizes[static_cast<std::size_t>(i)], offset, {});
        context.progress.SetStatus(GetText(texts::AddingPrimaryHeader) + std::to_string(i));
        file.Write(entry.data(), entry.size());
        offset += sizes[static_cast<std::size_t>(i)];
    }

    context.log.AddLogEntry("I_HF");
    for (int i = 0; i < count; ++i) {
        EncodedEntry entry;
        if (set.Info(i).png) {
            context.log.AddLogEntry("I_AI");
            entry.data = std::move(pngStreams[static_cast<std::size_t>(i)]);
        } else {
            entry = EncodeEntry(set, i, context);
        }
        WriteEntry(file, entry);
        context.progress.SetProgress(i + 1, count);
        context.progress.Yield();
    }
    context.log.AddLogEntry("I_FS");
    context.progress.SetStatus("");
    return file.Commit();
}

std::vector<std::uint8_t> BuildCursorFile(const IconSet& set, int index, int hotspotX, int hotspotY,
                                          CoreContext& context) {
    EncodedEntry encoded = EncodeEntry(set, index, context);
    std::vector<std::uint8_t> out = FileHeader(ico::kTypeCursor, 1);
    DirectoryFields fields{true, static_cast<std::uint16_t>(hotspotX),
                           static_cast<std::uint16_t>(hotspotY)};
    auto entry = EncodeDirectoryEntry(set.Info(index), static_cast<std::uint32_t>(encoded.Size()),
                                      ico::kHeaderSize + ico::kEntrySize, fields);
    out.insert(out.end(), entry.begin(), entry.end());
    out.insert(out.end(), encoded.header.begin(), encoded.header.end());
    out.insert(out.end(), encoded.data.begin(), encoded.data.end());
    return out;
}

bool WriteCursorFile(const std::string& path, const IconSet& set, int index, int hotspotX,
                     int hotspotY, CoreContext& context) {
    if (index < 0 || index >= set.Count()) return false;
    AtomicFile file;
    if (!file.Open(path)) return false;
    auto bytes = BuildCursorFile(set, index, hotspotX, hotspotY, context);
    file.Write(bytes.data(), bytes.size());
    context.progress.SetStatus("");
    return file.Commit();
}

}  // namespace iw
