#include "PngTestHelpers.h"

#include <array>
#include <random>

#include "codec/png/PngCodec.h"
#include "codec/zlib/Checksums.h"
#include "codec/zlib/Compression.h"

namespace iw::test {

std::vector<std::uint8_t> BE32(std::uint32_t value) {
    return {static_cast<std::uint8_t>(value >> 24), static_cast<std::uint8_t>(value >> 16),
            static_cast<std::uint8_t>(value >> 8), static_cast<std::uint8_t>(value)};
}

PngBuilder::PngBuilder() : bytes_{0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A} {}

PngBuilder& PngBuilder::ChunkWithCrc(const char type[5], const std::vector<std::uint8_t>& data,
                                     std::uint32_t crc) {
    const auto length = BE32(static_cast<std::uint32_t>(data.size())), c = BE32(crc);
    bytes_.insert(bytes_.end(), length.begin(), length.end());
    bytes_.insert(bytes_.end(), type, type + 4);
    bytes_.insert(bytes_.end(), data.begin(), data.end());
    bytes_.insert(bytes_.end(), c.begin(), c.end());
    return *this;
}

PngBuilder& PngBuilder::Chunk(const char type[5], const std::vector<std::uint8_t>& data) {
    std::vector<std::uint8_t> typeAndData(type, type + 4);
    typeAndData.insert(typeAndData.end(), data.begin(), data.end());
    return ChunkWithCrc(type, data, Crc32(0, typeAndData));
}

PngBuilder& PngBuilder::Header(std::uint32_t width, std::uint32_t height, std::uint8_t depth,
                               std::uint8_t colorType, std::uint8_t interlace) {
    auto data = BE32(width);
    const auto h = BE32(height);
    data.insert(data.end(), h.begin(), h.end());
    data.insert(data.end(), {depth, colorType, 0, 0, interlace});
    return Chunk("IHDR", data);
}

PngBuilder& PngBuilder::ImageData(const std::vector<std::uint8_t>& raw, std::size_t piece) {
    const auto stream = ZlibCompress(raw);
    for (std::size_t at = 0; at < stream.size(); at += piece) {
        const auto begin = stream.begin() + static_cast<std::ptrdiff_t>(at);
        Chunk("IDAT",
              {begin, begin + static_cast<std::ptrdiff_t>(std::min(piece, stream.size() - at))});
    }
    return *this;
}

std::vector<std::uint8_t> RgbaOf(const c32bppDIB& image) {
    std::vector<std::uint8_t> out;
    for (int y = 0; y < image.Height(); ++y) {
        const std::uint8_t* p = image.TopDownRow(y);
        for (int x = 0; x < image.Width(); ++x, p += 4)
            out.insert(out.end(), {p[2], p[1], p[0], p[3]});
    }
    return out;
}

std::optional<c32bppDIB> Decode(const std::vector<std::uint8_t>& png) {
    c32bppDIB dib;
    if (!DecodePngStream(png, dib, PictureLimits())) return std::nullopt;
    return dib;
}

const char* KindName(ImageKind kind) {
    static const char* const names[] = {"grey",     "grey+alpha", "palette2",
                                        "palette4", "palette16",  "palette256",
                                        "rgb",      "rgba",       "colorkey"};
    return names[static_cast<int>(kind)];
}

std::vector<std::uint8_t> RandomImage(ImageKind kind, int width, int height, std::uint32_t seed) {
    std::mt19937 random(seed);
    auto byte = [&] { return static_cast<std::uint8_t>(random() & 0xFF); };
    static const std::size_t paletteSizes[] = {0, 0, 2, 4, 16, 256, 0, 0, 0};
    std::vector<std::array<std::uint8_t, 4>> palette(paletteSizes[static_cast<int>(kind)]);
    for (auto& c : palette)
        c = {byte(), byte(), byte(), byte()};
    if (!palette.empty()) palette[0][3] = 255;
    std::vector<std::uint8_t> rgba;
    for (int i = 0; i < width * height; ++i) {
        // Smooth areas with noise, so that the filters have something to find.
        const auto smooth =
            static_cast<std::uint8_t>((i % width) * 3 + (i / width) * 2 + (random() % 8));
        const auto inverse = static_cast<std::uint8_t>(255 - smooth);
        switch (kind) {
            case ImageKind::Grey:
                rgba.insert(rgba.end(), {smooth, smooth, smooth, 255});
                break;
            case ImageKind::GreyAlpha:
                rgba.insert(rgba.end(), {smooth, smooth, smooth, byte()});
                break;
            case ImageKind::Rgb:
                rgba.insert(rgba.end(), {smooth, byte(), inverse, 255});
                break;
            case ImageKind::Rgba:
                rgba.insert(rgba.end(), {smooth, byte(), byte(), byte()});
                break;
            case ImageKind::ColorKey:
                if (random() % 4 == 0) {
                    rgba.insert(rgba.end(), {1, 2, 3, 0});
                } else {
                    rgba.insert(rgba.end(),
                                {smooth, byte(), static_cast<std::uint8_t>(smooth ^ 0x55), 255});
                }
                break;
            default:
                const auto& c = palette[random() % palette.size()];
                rgba.insert(rgba.end(), c.begin(), c.end());
        }
    }
    return rgba;
}

}  // namespace iw::test
