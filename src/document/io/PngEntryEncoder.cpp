#include "document/io/PngEntryEncoder.h"

#include "codec/png/PngCodec.h"
#include "document/io/ImageRgba.h"

namespace iw {

std::vector<std::uint8_t> EncodePngEntry(const IconImage& image) {
    if (!image.OriginalPng().empty()) return image.OriginalPng();
    std::vector<std::uint8_t> stream;
    // Windows reads the PNG image of an icon entry as 32-bit ARGB only.
    if (!EncodePngStream(image.info.Width(), image.info.Height(), ImageToRgba(image), stream, {},
                         PngPixelLayout::Rgba8)) {
        return {};
    }
    return stream;
}

}  // namespace iw
