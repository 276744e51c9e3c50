#pragma once
// Byte layout of ICO and CUR files. All integers are little-endian.
//
//   header (6 bytes)        reserved 0 | type 1 = icon, 2 = cursor | count
//   directory entry (16)    width | height | colour count | reserved |
//                           planes or hotspot x | bit count or hotspot y |
//                           bytes in resource (32) | image offset (32)
//   image data              a 40-byte bitmap information header, a palette for 1, 4 and
//                           8 bits, the colour rows and the mask rows (both bottom-up, each
//                           row padded to 4 bytes); or a PNG stream.

#include <cstddef>
#include <cstdint>

namespace iw::ico {

inline constexpr std::size_t kHeaderSize = 6;
inline constexpr std::size_t kEntrySize = 16;
inline constexpr std::size_t kBitmapHeaderSize = 40;
inline constexpr std::uint16_t kTypeIcon = 1;
inline constexpr std::uint16_t kTypeCursor = 2;

// Directory entry fields, relative to the entry.
inline constexpr std::size_t kEntryWidth = 0;
inline constexpr std::size_t kEntryHeight = 1;
inline constexpr std::size_t kEntryColorCount = 2;
inline constexpr std::size_t kEntryReserved = 3;
inline constexpr std::size_t kEntryPlanesOrHotspotX = 4;
inline constexpr std::size_t kEntryBitCountOrHotspotY = 6;
inline constexpr std::size_t kEntryBytesInResource = 8;
inline constexpr std::size_t kEntryImageOffset = 12;

// Bitmap information header fields, relative to the header.
inline constexpr std::size_t kBmpWidth = 4;
inline constexpr std::size_t kBmpHeight = 8;  // twice the image height: colour and mask rows
inline constexpr std::size_t kBmpPlanes = 12;
inline constexpr std::size_t kBmpBitCount = 14;
inline constexpr std::size_t kBmpCompression = 16;
inline constexpr std::size_t kBmpImageSize = 20;

// Bytes in one stored row of `width` pixels at `bitCount` bits, padded to 4 bytes.
constexpr std::size_t RowStride(int width, int bitCount) {
    return ((static_cast<std::size_t>(width) * static_cast<std::size_t>(bitCount) + 31) / 32) * 4;
}

constexpr bool IsSupportedBitCount(int bitCount) {
    return bitCount == 1 || bitCount == 4 || bitCount == 8 || bitCount == 24 || bitCount == 32;
}

}  // namespace iw::ico
