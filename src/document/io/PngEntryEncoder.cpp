#include "document/io/PngEntryEncoder.h"

#include "codec/c32bppDIB.h"
#include "document/io/ImageRgba.h"

namespace iw {

std::vector<std::uint8_t> EncodePngEntry(const IconImage& image) {
    if (!image.originalPng.empty()) return image.originalPng;
    c32bppDIB picture;
    if (!ImageToPicture(image, picture)) return {};
    std::vector<std::uint8_t> stream;
    if (!picture.SaveToStream_PNG(stream)) return {};
    return stream;
}

}  // namespace iw
