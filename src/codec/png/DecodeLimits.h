#pragma once
// Limits are data: the decoders are told how large a picture may be before they allocate
// anything for it, so that a header that lies about its size or a small stream that
// inflates to gigabytes is refused up front.

#include <cstdint>

namespace iw {

struct DecodeLimits {
    std::uint32_t maxWidth = 0;
    std::uint32_t maxHeight = 0;
    std::uint64_t maxPixels = 0;  // width x height
};

// An entry of an icon or cursor file is never larger than 256 x 256.
constexpr DecodeLimits IconEntryLimits() {
    return {256, 256, 256u * 256u};
}

// Pictures opened for import or conversion: far beyond any camera, still finite. At the cap
// the 32-bpp image takes 256 MiB.
constexpr DecodeLimits PictureLimits() {
    return {32768, 32768, std::uint64_t{1} << 26};
}

constexpr bool FitsLimits(std::uint64_t width, std::uint64_t height, const DecodeLimits& limits) {
    return width > 0 && height > 0 && width <= limits.maxWidth && height <= limits.maxHeight &&
           width * height <= limits.maxPixels;
}

}  // namespace iw
