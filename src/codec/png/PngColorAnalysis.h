#pragma once
// The writer's choice of PNG colour type and bit depth, made from the pixels, and the
// packing of the pixels into rows of that format. Every choice is lossless: the file reads
// back to exactly the image's blue, green, red and alpha bytes, including the colours of
// fully transparent pixels.

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "codec/png/PngFormat.h"

namespace iw {

class c32bppDIB;

namespace png {

// One way to store an image.
struct Encoding {
    std::uint8_t colorType = kRgba;
    std::uint8_t bitDepth = 8;
    std::vector<std::array<std::uint8_t, 4>> palette;  // R, G, B, A; entries with A < 255 first
    // The single tRNS colour of types 0 and 2, at the output's bit depth.
    std::optional<std::array<std::uint16_t, 3>> transparent;
    // The number of leading palette entries whose alpha is below 255 (the tRNS length).
    std::size_t paletteAlphaCount = 0;
};

// What the pixels need.
struct ColorStats {
    bool opaque = true;       // every alpha is 255
    bool grey = true;         // every pixel has red = green = blue
    bool binaryAlpha = true;  // every alpha is 0 or 255
    bool keyUsable = false;   // the transparent pixels share one colour that no opaque pixel has
    std::array<std::uint8_t, 3> key{};  // that colour: R, G, B
    std::uint8_t greyDepth = 8;         // smallest depth that holds every grey level exactly
    // The distinct RGBA colours, in order of first appearance; empty when there are more
    // than 256.
    std::vector<std::array<std::uint8_t, 4>> colors;
};

ColorStats AnalyzeColors(const c32bppDIB& image);

// The encodings worth trying, best guess first: the direct type (grey, grey with alpha,
// RGB or RGBA, with tRNS where a single colour key is exact) and, when the colours fit,
// the palette type. Small images (48 x 48 or less) get both to be compared; larger ones
// get the one that stores fewer bits a pixel.
std::vector<Encoding> CandidateEncodings(const ColorStats& stats, std::int32_t width,
                                         std::int32_t height);

// The image's rows in `encoding`, top row first, `RowBytes` bytes each, without filter
// bytes.
std::vector<std::uint8_t> PackRows(const c32bppDIB& image, const Encoding& encoding);
std::size_t RowBytes(const Encoding& encoding, std::int32_t width);

}  // namespace png
}  // namespace iw
