#include "document/io/PngEntryEncoder.h"

#include "codec/c32bppDIB.h"
#include "document/io/ImageRgba.h"

namespace iw {

std::vector<std::uint8_t> EncodePngEntry(const IconImage& image) {
    if (!image.originalPng.empty()) return image.originalPng;
    const int width = image.info.Width();
    const int height = image.info.Height();
    c32bppDIB picture;
    if (!picture.InitializeDIB(width, height)) return {};
    const std::vector<std::uint8_t> rgba = ImageToRgba(image);
    const std::uint8_t* in = rgba.data();
    for (int y = 0; y < height; ++y) {
        std::uint8_t* bgra = picture.TopDownRow(y);
        for (int x = 0; x < width; ++x, in += 4, bgra += 4) {
            bgra[0] = in[2];
            bgra[1] = in[1];
            bgra[2] = in[0];
            bgra[3] = in[3];
        }
    }
    picture.Alpha(true);
    std::vector<std::uint8_t> stream;
    if (!picture.SaveToStream_PNG(stream)) return {};
    return stream;
}

}  // namespace iw
