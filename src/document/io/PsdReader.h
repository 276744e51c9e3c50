#pragma once
// The merged image of Photoshop files (".psd"), read by the program itself: the picture
// that Photoshop stores after the layers, raw or PackBits-compressed, 8 or 16 bits a
// channel (16 bits are cut to their high byte). RGB is the colour model the import
// supports; the others (greyscale, duotone, bitmap, indexed, CMYK, Lab, multichannel) are
// read on request as well as their channels allow. When the file marks its first extra
// channel as the merged transparency (a negative layer count), that channel is the alpha,
// and the colours, which Photoshop stores blended over white, are taken back off white.
//
// Nothing in the file is trusted: every length, offset and count is checked against the
// file before use, and the picture's sides against the caller's limits before anything is
// allocated for it.

#include <cstdint>
#include <span>

#include "codec/png/DecodeLimits.h"
#include "imaging/RgbaBuffer.h"

namespace iw {

enum class PsdColorMode : int {
    Bitmap = 0,
    Grayscale = 1,
    Indexed = 2,
    Rgb = 3,
    Cmyk = 4,
    Multichannel = 7,
    Duotone = 8,
    Lab = 9,
};

enum class PsdStatus {
    Ok,
    NotRgb,    // a colour model other than RGB, and the caller did not accept others
    Broken,    // not a Photoshop file, truncated, lying lengths, or an unsupported variant
    TooLarge,  // beyond the caller's limits
};

// Decodes the merged image of `file` into `picture` (replaced only on success).
PsdStatus DecodePsd(std::span<const std::uint8_t> file, const DecodeLimits& limits,
                    bool acceptOtherColorModels, RgbaBuffer& picture);

}  // namespace iw
