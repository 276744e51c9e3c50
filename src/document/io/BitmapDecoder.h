#pragma once
// Decodes one bitmap-stored icon image (40-byte header, palette, colour rows, mask rows)
// into an image's two planes.

#include <cstddef>
#include <cstdint>
#include <span>

#include "document/model/IconImage.h"

namespace iw {

// The image side that a stored height stands for: half of it, since colour and mask rows
// are stacked. The halving is exact arithmetic rounded to the nearest, halves to even, so a
// (malformed) odd height of 3 stands for 2 rows and a height of 1 for none.
int HalvedBitmapHeight(std::int64_t storedHeight);

// True when the header's two sides describe an image the set can hold (1 to 256 each).
bool BitmapSidesFit(std::int64_t width, std::int64_t storedHeight);

// Reads the header at `offset` of `file`. When its sides fit, sets the image's fields 0 and 1
// from the header (x extent from its width, y extent from its halved height) and field 4 to
// 0; then, for bit counts 1, 4, 8, 24 and 32, sets field 2 and decodes colour, alpha and
// mask.
//
// Data that lies outside the file is never read: rows (or the parts of rows) that are
// missing stay blank, and missing mask rows count as unset. Returns false when the image
// could not be decoded: the header's sides do not fit (the image is untouched) or its bit
// count is none of the five (the image is blank with the header's sides; field 2 is left
// to the caller).
bool DecodeBitmapEntry(std::span<const std::uint8_t> file, std::size_t offset, IconImage& image);

}  // namespace iw
