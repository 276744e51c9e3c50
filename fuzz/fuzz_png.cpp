// The PNG reader on arbitrary bytes. The last input byte holds the options: bit 0 turns the
// loaded zlib off (own inflate, no CRC checks), bit 1 picks the icon-entry limits instead
// of the picture limits. Small images that decode are written again and must read back to
// the same pixels.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <span>
#include <vector>

#include "codec/png/PngCodec.h"
#include "codec/png/c32bppDIB.h"
#include "codec/zlib/Compression.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::uint8_t options = data[size - 1];
    std::optional<iw::ScopedZlibDisabled> noZlib;
    if (options & 1) noZlib.emplace();
    const iw::DecodeLimits limits = (options & 2) ? iw::IconEntryLimits() : iw::PictureLimits();
    iw::RgbaImage image;
    if (!iw::DecodePngStream(std::span(data, size - 1), image, limits)) return 0;
    if (image.width > 32 || image.height > 32) return 0;
    std::vector<std::uint8_t> png;
    iw::RgbaImage again;
    if (!iw::EncodePngStream(image.width, image.height, image.rgba, png) ||
        !iw::DecodePngStream(png, again) || again.rgba != image.rgba) {
        std::abort();
    }
    return 0;
}
