#include "codec/png/PngCodec.h"

#include <new>

#include "codec/png/c32bppDIB.h"
#include "codec/png/cPNGParser.h"
#include "codec/png/cPNGWriter.h"

namespace iw {

bool DecodePngStream(std::span<const std::uint8_t> stream, c32bppDIB& image,
                     const DecodeLimits& limits) {
    cPNGParser parser;
    std::int32_t width = 0;
    std::int32_t height = 0;
    return parser.LoadStream(stream, 0, stream.size(), image, width, height, limits);
}

bool DecodePngStream(std::span<const std::uint8_t> stream, png::RowSink& sink,
                     const DecodeLimits& limits) {
    cPNGParser parser;
    std::int32_t width = 0;
    std::int32_t height = 0;
    return parser.LoadStream(stream, 0, stream.size(), sink, width, height, limits);
}

bool DecodePngStream(std::span<const std::uint8_t> stream, RgbaImage& image,
                     const DecodeLimits& limits) {
    image = {};
    c32bppDIB dib;
    if (!DecodePngStream(stream, dib, limits)) return false;
    try {
        image.rgba.resize(static_cast<std::size_t>(dib.Width()) *
                          static_cast<std::size_t>(dib.Height()) * 4);
    } catch (const std::bad_alloc&) {
        image = {};
        return false;
    }
    image.width = dib.Width();
    image.height = dib.Height();
    std::uint8_t* out = image.rgba.data();
    for (std::int32_t y = 0; y < dib.Height(); ++y) {
        const std::uint8_t* p = dib.TopDownRow(y);
        for (std::int32_t x = 0; x < dib.Width(); ++x, p += 4, out += 4) {
            out[0] = p[2];
            out[1] = p[1];
            out[2] = p[0];
            out[3] = p[3];
        }
    }
    return true;
}

bool EncodePngStream(std::int32_t width, std::int32_t height, std::span<const std::uint8_t> rgba,
                     std::vector<std::uint8_t>& png, const PngProperties& properties,
                     PngPixelLayout layout) {
    png.clear();
    if (width <= 0 || height <= 0 ||
        rgba.size() != static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(height) * 4) {
        return false;
    }
    c32bppDIB dib;
    if (!dib.InitializeDIB(width, height)) return false;
    const std::uint8_t* in = rgba.data();
    for (std::int32_t y = 0; y < height; ++y) {
        std::uint8_t* p = dib.TopDownRow(y);
        for (std::int32_t x = 0; x < width; ++x, p += 4, in += 4) {
            p[0] = in[2];
            p[1] = in[1];
            p[2] = in[0];
            p[3] = in[3];
        }
    }
    cPNGWriter writer;
    writer.SetPixelLayout(layout);
    return writer.SaveToStream(dib, png, properties);
}

}  // namespace iw
