#pragma once
// The headers of a Windows program or library (PE32 and PE32+): the DOS header's pointer
// to the PE signature, the COFF header, the optional header's resource data directory and
// the section table, through which addresses (RVAs) are mapped to file offsets.
//
//   DOS header        "MZ" ... e_lfanew (32 bits at 0x3C): offset of the PE signature
//   PE signature      "PE\0\0"
//   COFF header (20)  machine | section count | ... | optional header size | ...
//   optional header   magic 0x10B (PE32) or 0x20B (PE32+) | ... | directory count |
//                     data directories (8 bytes each: RVA, size); index 2 the resources
//   section table     40 bytes a section: name (8) | virtual size | virtual address |
//                     size of raw data | pointer to raw data | ...
//
// Nothing read from the file is trusted: a section's data is clipped to what the file
// holds, and an address maps only into the data of one section.

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace iw::pe {

// One section's data as it lies in the file.
struct Section {
    std::uint32_t virtualAddress = 0;
    std::uint32_t extent = 0;  // bytes of the file mapped at virtualAddress
    std::uint64_t fileOffset = 0;
};

struct ImageHeaders {
    bool pe32Plus = false;
    std::vector<Section> sections;
    std::uint32_t resourceRva = 0;  // 0: no resource table
    std::uint32_t resourceSize = 0;

    // The file offset of [rva, rva + size) when all of it lies in the file data of one
    // section; nothing otherwise.
    std::optional<std::uint64_t> FileOffsetOf(std::uint32_t rva, std::uint32_t size) const;
    // The file bytes from `rva` to the end of its section's data; empty when `rva` lies in
    // no section.
    std::span<const std::uint8_t> DataFrom(std::span<const std::uint8_t> file,
                                           std::uint32_t rva) const;
};

// The Windows loader takes no more sections than this; neither do we.
inline constexpr std::uint32_t kMaxSections = 96;

// The offset of the PE signature (e_lfanew) when `head`, the file's first bytes, holds an
// "MZ" DOS header.
std::optional<std::uint32_t> PeHeaderOffset(std::span<const std::uint8_t> head);
// True when `header`, the file's bytes from that offset on, starts with the PE signature,
// a COFF header and an optional header of PE32 or PE32+.
bool IsPeHeader(std::span<const std::uint8_t> header);

// Both of the above on a whole file: it is a Windows program or library of 32 or 64 bits.
bool LooksLikePeImage(std::span<const std::uint8_t> file);

// The headers when `file` is a PE32 or PE32+ image whose headers and section table lie in
// the file; nothing for anything else (a 16-bit program among them).
std::optional<ImageHeaders> ReadImageHeaders(std::span<const std::uint8_t> file);

}  // namespace iw::pe
