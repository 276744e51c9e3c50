#include "document/io/PeImage.h"

#include <algorithm>

#include "services/core/CheckedBytes.h"

namespace iw::pe {
namespace {

constexpr std::size_t kDosHeaderSize = 0x40;
constexpr std::size_t kLfanewAt = 0x3C;
constexpr std::size_t kCoffHeaderSize = 20;
constexpr std::size_t kSectionHeaderSize = 40;
constexpr std::uint16_t kMagicPe32 = 0x10B;
constexpr std::uint16_t kMagicPe32Plus = 0x20B;
constexpr std::uint32_t kResourceDirectory = 2;

// Where the directory count and the first data directory lie in the optional header.
struct OptionalLayout {
    std::size_t directoryCountAt;
    std::size_t directoriesAt;
};
constexpr OptionalLayout kPe32{92, 96};
constexpr OptionalLayout kPe32Plus{108, 112};

// A section's data in the file: the smaller of its size in memory and its size on disk
// (a virtual size of 0 means the raw size), cut at the end of the file.
Section SectionAt(std::span<const std::uint8_t> file, const std::uint8_t* header) {
    const std::uint32_t virtualSize = LoadLE32(header + 8);
    const std::uint32_t rawSize = LoadLE32(header + 16);
    Section section;
    section.virtualAddress = LoadLE32(header + 12);
    section.fileOffset = LoadLE32(header + 20);
    std::uint64_t extent = virtualSize == 0 ? rawSize : std::min(virtualSize, rawSize);
    if (section.fileOffset >= file.size()) {
        extent = 0;
    } else {
        extent = std::min<std::uint64_t>(extent, file.size() - section.fileOffset);
    }
    // Nor may it reach past the 32-bit address space.
    extent = std::min<std::uint64_t>(extent, 0x1'0000'0000ull - section.virtualAddress);
    section.extent = static_cast<std::uint32_t>(extent);
    return section;
}

const Section* SectionHolding(const std::vector<Section>& sections, std::uint32_t rva) {
    for (const Section& s : sections) {
        if (rva >= s.virtualAddress && rva - s.virtualAddress < s.extent) return &s;
    }
    return nullptr;
}

}  // namespace

std::optional<std::uint64_t> ImageHeaders::FileOffsetOf(std::uint32_t rva,
                                                        std::uint32_t size) const {
    const Section* s = SectionHolding(sections, rva);
    if (!s) return std::nullopt;
    const std::uint32_t into = rva - s->virtualAddress;
    if (!RangeFits(into, size, s->extent)) return std::nullopt;
    return s->fileOffset + into;
}

std::span<const std::uint8_t> ImageHeaders::DataFrom(std::span<const std::uint8_t> file,
                                                     std::uint32_t rva) const {
    const Section* s = SectionHolding(sections, rva);
    if (!s) return {};
    const std::uint32_t into = rva - s->virtualAddress;
    // The extent lies in the file (SectionAt cut it there).
    return file.subspan(static_cast<std::size_t>(s->fileOffset + into), s->extent - into);
}

std::optional<std::uint32_t> PeHeaderOffset(std::span<const std::uint8_t> head) {
    if (head.size() < kDosHeaderSize || head[0] != 'M' || head[1] != 'Z') return std::nullopt;
    return LoadLE32(head.data() + kLfanewAt);
}

bool IsPeHeader(std::span<const std::uint8_t> header) {
    if (header.size() < 4 + kCoffHeaderSize + 2) return false;
    const std::uint8_t* h = header.data();
    if (h[0] != 'P' || h[1] != 'E' || h[2] != 0 || h[3] != 0) return false;
    const std::uint16_t magic = LoadLE16(h + 4 + kCoffHeaderSize);
    return magic == kMagicPe32 || magic == kMagicPe32Plus;
}

bool LooksLikePeImage(std::span<const std::uint8_t> file) {
    const std::optional<std::uint32_t> pe = PeHeaderOffset(file);
    return pe && *pe < file.size() && IsPeHeader(file.subspan(*pe));
}

std::optional<ImageHeaders> ReadImageHeaders(std::span<const std::uint8_t> file) {
    if (!LooksLikePeImage(file)) return std::nullopt;
    const std::uint32_t pe = LoadLE32(file.data() + kLfanewAt);
    const std::uint8_t* coff = file.data() + pe + 4;
    const std::uint32_t sectionCount = LoadLE16(coff + 2);
    const std::uint32_t optionalSize = LoadLE16(coff + 16);
    const std::uint64_t optionalAt = std::uint64_t{pe} + 4 + kCoffHeaderSize;
    if (sectionCount > kMaxSections || !RangeFits(optionalAt, optionalSize, file.size()) ||
        optionalSize < 2) {
        return std::nullopt;
    }
    const std::uint8_t* optional = file.data() + optionalAt;
    const std::uint16_t magic = LoadLE16(optional);

    ImageHeaders headers;
    headers.pe32Plus = magic == kMagicPe32Plus;
    const OptionalLayout layout = headers.pe32Plus ? kPe32Plus : kPe32;
    // The resource directory counts only when the header says it has one and holds it.
    if (optionalSize >= layout.directoryCountAt + 4) {
        const std::uint32_t count = LoadLE32(optional + layout.directoryCountAt);
        const std::size_t at = layout.directoriesAt + 8 * kResourceDirectory;
        if (count > kResourceDirectory && optionalSize >= at + 8) {
            headers.resourceRva = LoadLE32(optional + at);
            headers.resourceSize = LoadLE32(optional + at + 4);
        }
    }

    const std::uint64_t tableAt = optionalAt + optionalSize;
    if (!RangeFits(tableAt, std::uint64_t{sectionCount} * kSectionHeaderSize, file.size())) {
        return std::nullopt;
    }
    headers.sections.reserve(sectionCount);
    for (std::uint32_t i = 0; i < sectionCount; ++i) {
        headers.sections.push_back(
            SectionAt(file, file.data() + tableAt + std::uint64_t{i} * kSectionHeaderSize));
    }
    return headers;
}

}  // namespace iw::pe
