#pragma once
// The PNG layout shared by the reader and the writer: signature, chunk types, the header
// fields and the arithmetic that turns them into row and image sizes.
//
// A PNG stream is an 8-byte signature followed by chunks:
//   length (4, big-endian, counts the data only), type (4 ASCII bytes), data, CRC-32 (4,
//   big-endian, over type and data).
// A chunk length may not exceed 2^31 - 1.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace iw::png {

inline constexpr std::array<std::uint8_t, 8> kSignature{0x89, 0x50, 0x4E, 0x47,
                                                        0x0D, 0x0A, 0x1A, 0x0A};
inline constexpr std::uint32_t kMaxChunkLength = 0x7FFFFFFFu;
inline constexpr std::size_t kChunkOverhead = 12;  // length, type, CRC
inline constexpr std::size_t kHeaderLength = 13;

constexpr std::uint32_t ChunkType(char a, char b, char c, char d) {
    return (static_cast<std::uint32_t>(static_cast<std::uint8_t>(a)) << 24) |
           (static_cast<std::uint32_t>(static_cast<std::uint8_t>(b)) << 16) |
           (static_cast<std::uint32_t>(static_cast<std::uint8_t>(c)) << 8) |
           static_cast<std::uint32_t>(static_cast<std::uint8_t>(d));
}

inline constexpr std::uint32_t kIHDR = ChunkType('I', 'H', 'D', 'R');
inline constexpr std::uint32_t kPLTE = ChunkType('P', 'L', 'T', 'E');
inline constexpr std::uint32_t kTRNS = ChunkType('t', 'R', 'N', 'S');
inline constexpr std::uint32_t kIDAT = ChunkType('I', 'D', 'A', 'T');
inline constexpr std::uint32_t kIEND = ChunkType('I', 'E', 'N', 'D');
inline constexpr std::uint32_t kTEXT = ChunkType('t', 'E', 'X', 't');
inline constexpr std::uint32_t kZTXT = ChunkType('z', 'T', 'X', 't');
inline constexpr std::uint32_t kTIME = ChunkType('t', 'I', 'M', 'E');

enum ColorType : std::uint8_t {
    kGrey = 0,
    kRgb = 2,
    kPalette = 3,
    kGreyAlpha = 4,
    kRgba = 6,
};

enum FilterType : std::uint8_t {
    kFilterNone = 0,
    kFilterSub = 1,
    kFilterUp = 2,
    kFilterAverage = 3,
    kFilterPaeth = 4,
};
inline constexpr int kFilterCount = 5;

struct Header {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint8_t bitDepth = 0;
    std::uint8_t colorType = 0;
    std::uint8_t compression = 0;
    std::uint8_t filter = 0;
    std::uint8_t interlace = 0;
};

// Samples per pixel of a colour type; 0 for a type PNG does not define.
int Channels(std::uint8_t colorType);
// True for the bit depth and colour type pairs PNG allows.
bool IsValidDepth(std::uint8_t colorType, std::uint8_t bitDepth);
// Width, height (1 .. 2^31 - 1), depth and type, compression 0, filter 0, interlace 0 or 1.
bool IsValidHeader(const Header& header);
// The IHDR chunk's data: exactly 13 bytes holding a valid header, else nullopt.
std::optional<Header> ReadHeader(std::span<const std::uint8_t> data);

// Bytes from one pixel to the same sample of the next, at least 1: the distance the row
// filters use.
std::size_t FilterStride(std::uint8_t colorType, std::uint8_t bitDepth);
// Bytes of `pixels` packed pixels, without the filter byte; nullopt on overflow.
std::optional<std::uint64_t> PackedRowBytes(std::uint64_t pixels, std::uint8_t colorType,
                                            std::uint8_t bitDepth);

// The Adam7 pattern: starting column, starting row, column step, row step per pass.
struct Adam7Pass {
    std::uint32_t x0, y0, dx, dy;
};
inline constexpr std::array<Adam7Pass, 7> kAdam7{{
    {0, 0, 8, 8},
    {4, 0, 8, 8},
    {0, 4, 4, 8},
    {2, 0, 4, 4},
    {0, 2, 2, 4},
    {1, 0, 2, 2},
    {0, 1, 1, 2},
}};

// One sub-image to unfilter and place: the whole image, or one Adam7 pass.
struct PassLayout {
    std::uint32_t x0 = 0, y0 = 0, dx = 1, dy = 1;
    std::uint32_t columns = 0;  // pixels in a row of the pass; 0 for an empty pass
    std::uint32_t rows = 0;
    std::size_t rowBytes = 0;  // packed bytes of one row, without the filter byte
    std::size_t offset = 0;    // where the pass begins in the raw (filtered) data
};

struct ImageLayout {
    std::array<PassLayout, 7> passes{};
    int passCount = 0;
    std::size_t rawSize = 0;  // every pass: rows x (1 + rowBytes)
};

// The passes of an image and the size of its filtered data; nullopt when that size does
// not fit in memory arithmetic.
std::optional<ImageLayout> LayoutOf(const Header& header);

}  // namespace iw::png
