#pragma once
// Encodes one image of the set as a bitmap entry: the 40-byte information header, the
// palette (1, 4 and 8 bits), the colour rows and the mask rows, bottom-up, each row padded
// to 4 bytes.
//
// The header's width is field 1 + 1 and its height (field 0 + 1) x 2, so the sides are
// written crosswise to how they are read; a square image round-trips unchanged. Written
// pixel (column c, row r from the top) is the planes' cell (c, r).

#include <cstddef>
#include <cstdint>
#include <vector>

#include "document/model/IconImage.h"
#include "services/core/UserInterface.h"

namespace iw {

struct BitmapGeometry {
    int width = 0;   // columns written: field 1 + 1
    int height = 0;  // rows written: field 0 + 1
    int bitCount = 0;
    std::size_t paletteBytes = 0;
    std::size_t colorStride = 0;
    std::size_t maskStride = 0;

    std::size_t ColorAndMaskBytes() const {
        return (colorStride + maskStride) * static_cast<std::size_t>(height);
    }
    // Header, palette, colour and mask rows: the entry's bytes in resource.
    std::size_t EntryBytes() const { return 40 + paletteBytes + ColorAndMaskBytes(); }
};

// The layout of an image with these fields written with `bitCount` bits (1, 4, 8, 24 or
// 32; its own, or 32 for a PNG-compressed image stored as a bitmap).
BitmapGeometry GeometryFor(const IconInfo& info, int bitCount);

// The 40-byte bitmap information header.
std::vector<std::uint8_t> EncodeBitmapHeader(const BitmapGeometry& geometry);

// Palette, colour rows and mask rows (everything after the header) laid out as
// `geometry`. Transparent pixels are written with colour bits 0 and mask 1, inverting
// pixels with all colour bits set and mask 1, every other pixel with its colour (or palette
// index) and mask 0. At 32 bits the alpha is the alpha plane; for an image of another depth
// it is 0 where a marker stands and 255 elsewhere. For 8 bits the palette is built for the
// image (with the status text on `progress`); `imageIndex` is the number shown there. A
// depth below 24 must be the image's own.
std::vector<std::uint8_t> EncodeBitmapData(const IconImage& image, const BitmapGeometry& geometry,
                                           int imageIndex, IProgressSink& progress);

}  // namespace iw
