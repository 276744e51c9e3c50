#pragma once
// Helpers for the PNG tests: streams built chunk by chunk, pixels out of a c32bppDIB as
// RGBA, and deterministic random images.

#include <cstdint>
#include <optional>
#include <vector>

#include "codec/png/c32bppDIB.h"

namespace iw::test {

// A PNG stream assembled chunk by chunk; CRCs are computed unless given.
class PngBuilder {
  public:
    PngBuilder();  // the signature
    PngBuilder& Chunk(const char type[5], const std::vector<std::uint8_t>& data);
    PngBuilder& ChunkWithCrc(const char type[5], const std::vector<std::uint8_t>& data,
                             std::uint32_t crc);
    PngBuilder& Header(std::uint32_t width, std::uint32_t height, std::uint8_t depth,
                       std::uint8_t colorType, std::uint8_t interlace = 0);
    // IDAT chunks of at most `piece` bytes holding the zlib stream of `raw`.
    PngBuilder& ImageData(const std::vector<std::uint8_t>& raw, std::size_t piece = 1u << 30);
    PngBuilder& End() { return Chunk("IEND", {}); }
    const std::vector<std::uint8_t>& Bytes() const { return bytes_; }

  private:
    std::vector<std::uint8_t> bytes_;
};

std::vector<std::uint8_t> BE32(std::uint32_t value);

// The DIB's pixels as R, G, B, A, top row first.
std::vector<std::uint8_t> RgbaOf(const c32bppDIB& image);

// Decodes a PNG in memory; nullopt on failure.
std::optional<c32bppDIB> Decode(const std::vector<std::uint8_t>& png);

// Random images of one kind, reproducible by seed.
enum class ImageKind {
    Grey,
    GreyAlpha,
    Palette2,
    Palette4,
    Palette16,
    Palette256,
    Rgb,
    Rgba,
    ColorKey
};
constexpr ImageKind kAllKinds[] = {ImageKind::Grey,     ImageKind::GreyAlpha, ImageKind::Palette2,
                                   ImageKind::Palette4, ImageKind::Palette16, ImageKind::Palette256,
                                   ImageKind::Rgb,      ImageKind::Rgba,      ImageKind::ColorKey};
const char* KindName(ImageKind kind);
std::vector<std::uint8_t> RandomImage(ImageKind kind, int width, int height, std::uint32_t seed);

}  // namespace iw::test
