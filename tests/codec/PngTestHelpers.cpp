#include "PngTestHelpers.h"

#include <cstdio>
#include <fstream>
#include <iterator>

#include "codec/Compression.h"
#include "codec/PngCodec.h"

namespace iw::test {

std::vector<std::uint8_t> BE32(std::uint32_t value) {
    return {static_cast<std::uint8_t>(value >> 24), static_cast<std::uint8_t>(value >> 16),
            static_cast<std::uint8_t>(value >> 8), static_cast<std::uint8_t>(value)};
}

PngBuilder::PngBuilder() : bytes_{0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A} {}

PngBuilder& PngBuilder::ChunkWithCrc(const char type[5], const std::vector<std::uint8_t>& data,
                                     std::uint32_t crc) {
    auto length = BE32(static_cast<std::uint32_t>(data.size()));
    bytes_.insert(bytes_.end(), length.begin(), length.end());
    bytes_.insert(bytes_.end(), type, type + 4);
    bytes_.insert(bytes_.end(), data.begin(), data.end());
    auto c = BE32(crc);
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
    auto h = BE32(height);
    data.insert(data.end(), h.begin(), h.end());
    data.insert(data.end(), {depth, colorType, 0, 0, interlace});
    return Chunk("IHDR", data);
}

PngBuilder& PngBuilder::ImageData(const std::vector<std::uint8_t>& raw, std::size_t piece) {
    const auto stream = ZlibCompress(raw);
    for (std::size_t at = 0; at < stream.size(); at += piece) {
        const std::size_t n = std::min(piece, stream.size() - at);
        Chunk("IDAT",
              std::vector<std::uint8_t>(stream.begin() + static_cast<std::ptrdiff_t>(at),
                                        stream.begin() + static_cast<std::ptrdiff_t>(at + n)));
    }
    return *this;
}

PngBuilder& PngBuilder::End() {
    return Chunk("IEND", {});
}

std::vector<std::uint8_t> RgbaOf(const c32bppDIB& image) {
    std::vector<std::uint8_t> out;
    out.reserve(static_cast<std::size_t>(image.Width()) * static_cast<std::size_t>(image.Height()) *
                4);
    for (int y = 0; y < image.Height(); ++y) {
        const std::uint8_t* p = image.TopDownRow(y);
        for (int x = 0; x < image.Width(); ++x, p += 4)
            out.insert(out.end(), {p[2], p[1], p[0], p[3]});
    }
    return out;
}

c32bppDIB DibFromRgba(int width, int height, const std::vector<std::uint8_t>& rgba) {
    c32bppDIB dib;
    dib.InitializeDIB(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const std::uint8_t* q = rgba.data() + 4 * (static_cast<std::size_t>(y) * width + x);
            dib.SetPixel(x, y, {q[2], q[1], q[0], q[3]});
        }
    }
    return dib;
}

std::vector<int> ReadJsonNumbers(const std::filesystem::path& file) {
    std::ifstream in(file);
    std::vector<int> numbers;
    int value = 0;
    bool inNumber = false;
    for (char c; in.get(c);) {
        if (c >= '0' && c <= '9') {
            value = value * 10 + (c - '0');
            inNumber = true;
        } else if (inNumber) {
            numbers.push_back(value);
            value = 0;
            inNumber = false;
        }
    }
    if (inNumber) numbers.push_back(value);
    return numbers;
}

std::optional<c32bppDIB> Decode(const std::vector<std::uint8_t>& png) {
    c32bppDIB dib;
    if (!DecodePngStream(png, dib, PictureLimits())) return std::nullopt;
    return dib;
}

const char* KindName(ImageKind kind) {
    switch (kind) {
        case ImageKind::Grey:
            return "grey";
        case ImageKind::GreyAlpha:
            return "grey+alpha";
        case ImageKind::Palette2:
            return "palette2";
        case ImageKind::Palette4:
            return "palette4";
        case ImageKind::Palette16:
            return "palette16";
        case ImageKind::Palette256:
            return "palette256";
        case ImageKind::Rgb:
            return "rgb";
        case ImageKind::Rgba:
            return "rgba";
        case ImageKind::ColorKey:
            return "colorkey";
    }
    return "?";
}

std::vector<std::uint8_t> RandomImage(ImageKind kind, int width, int height, std::uint32_t seed) {
    std::mt19937 random(seed);
    auto byte = [&] { return static_cast<std::uint8_t>(random() & 0xFF); };
    std::vector<std::array<std::uint8_t, 4>> palette;
    auto makePalette = [&](std::size_t n) {
        for (std::size_t i = 0; i < n; ++i)
            palette.push_back({byte(), byte(), byte(), byte()});
        palette[0][3] = 255;
    };
    switch (kind) {
        case ImageKind::Palette2:
            makePalette(2);
            break;
        case ImageKind::Palette4:
            makePalette(4);
            break;
        case ImageKind::Palette16:
            makePalette(16);
            break;
        case ImageKind::Palette256:
            makePalette(256);
            break;
        default:
            break;
    }
    std::vector<std::uint8_t> rgba;
    rgba.reserve(static_cast<std::size_t>(width) * height * 4);
    for (int i = 0; i < width * height; ++i) {
        // Smooth areas with noise, so that the filters have something to find.
        const auto smooth =
            static_cast<std::uint8_t>((i % width) * 3 + (i / width) * 2 + (random() % 8));
        switch (kind) {
            case ImageKind::Grey:
                rgba.insert(rgba.end(), {smooth, smooth, smooth, 255});
                break;
            case ImageKind::GreyAlpha:
                rgba.insert(rgba.end(), {smooth, smooth, smooth, byte()});
                break;
            case ImageKind::Rgb:
                rgba.insert(rgba.end(),
                            {smooth, byte(), static_cast<std::uint8_t>(255 - smooth), 255});
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
            default: {
                const auto& c = palette[random() % palette.size()];
                rgba.insert(rgba.end(), c.begin(), c.end());
            }
        }
    }
    return rgba;
}

std::optional<std::vector<std::uint8_t>> RunCapture(const std::string& command) {
    std::FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return std::nullopt;
    std::vector<std::uint8_t> out;
    std::uint8_t buffer[65536];
    std::size_t got = 0;
    while ((got = std::fread(buffer, 1, sizeof buffer, pipe)) > 0)
        out.insert(out.end(), buffer, buffer + got);
    if (pclose(pipe) != 0) return std::nullopt;
    return out;
}

}  // namespace iw::test
