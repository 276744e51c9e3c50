#pragma once
// How the writer filters a whole image before compressing it.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace iw::png {

enum class FilterStrategy {
    None,        // every row unfiltered: best for palette and low-depth images
    MinimumSum,  // per row, the filter whose output has the smallest sum of absolute values
    Sub,
    Up,
    Paeth,
};

// `rows` holds `height` packed rows of `rowBytes` bytes. The result has a filter-type byte
// before each row, as it goes into the zlib stream.
std::vector<std::uint8_t> FilterImage(std::span<const std::uint8_t> rows, std::size_t height,
                                      std::size_t rowBytes, std::size_t stride,
                                      FilterStrategy strategy);

}  // namespace iw::png
