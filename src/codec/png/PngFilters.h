#pragma once
// The five PNG row filters. Each row of filtered data begins with its filter type; the
// filters predict a byte from the byte one pixel to the left (a), the byte above (b) and
// the byte above and to the left (c), with 0 for bytes outside the image, and store the
// difference modulo 256.

#include <cstddef>
#include <cstdint>

namespace iw::png {

// The Paeth predictor as PNG defines it: of a, b and c, the one closest to a + b - c, ties
// broken in the order a, b, c.
inline std::uint8_t PaethPredictor(int a, int b, int c) {
    const int p = a + b - c;
    const int pa = p > a ? p - a : a - p;
    const int pb = p > b ? p - b : b - p;
    const int pc = p > c ? p - c : c - p;
    if (pa <= pb && pa <= pc) return static_cast<std::uint8_t>(a);
    if (pb <= pc) return static_cast<std::uint8_t>(b);
    return static_cast<std::uint8_t>(c);
}

// Undoes the filters of one image or interlace pass in place. `data` holds `rows` rows of
// 1 + `rowBytes` bytes; the row above the first is taken as zero. `stride` is the byte
// distance of one whole pixel (at least 1). Returns false on a filter type above 4.
bool UnfilterRows(std::uint8_t* data, std::size_t rows, std::size_t rowBytes, std::size_t stride);

// Undoes filter `type` (0 to 4) on one row of `count` bytes in place. `prior` is the
// reconstructed row above, or nullptr for the first row (a row of zeros).
void UnfilterRow(std::uint8_t type, std::uint8_t* row, const std::uint8_t* prior, std::size_t count,
                 std::size_t stride);

// Filters one row of `count` bytes with `type` into `out` (count bytes, no filter byte).
// `prior` is the unfiltered row above (zeros for the first row).
void FilterRow(std::uint8_t type, const std::uint8_t* row, const std::uint8_t* prior,
               std::size_t count, std::size_t stride, std::uint8_t* out);

}  // namespace iw::png
