#include "document/io/PsdReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <utility>
#include <vector>

#include "imaging/Rounding.h"
#include "services/core/CheckedBytes.h"

namespace iw {
namespace {

constexpr std::size_t kHeaderSize = 26;
constexpr int kMaxChannels = 56;
constexpr std::uint32_t kMaxSide = 30000;  // the format's own limit for ".psd"
constexpr std::size_t kPaletteBytes = 768;

std::uint16_t LoadBE16(const std::uint8_t* p) {
    return static_cast<std::uint16_t>((p[0] << 8) | p[1]);
}

struct Header {
    int channels = 0;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    int depth = 0;
    int mode = 0;
};

bool KnownMode(int mode) {
    switch (static_cast<PsdColorMode>(mode)) {
        case PsdColorMode::Bitmap:
        case PsdColorMode::Grayscale:
        case PsdColorMode::Indexed:
        case PsdColorMode::Rgb:
        case PsdColorMode::Cmyk:
        case PsdColorMode::Multichannel:
        case PsdColorMode::Duotone:
        case PsdColorMode::Lab:
            return true;
    }
    return false;
}

bool ReadHeader(std::span<const std::uint8_t> file, Header& h) {
    if (file.size() < kHeaderSize || std::memcmp(file.data(), "8BPS", 4) != 0) return false;
    const std::uint8_t* p = file.data();
    if (LoadBE16(p + 4) != 1) return false;  // 2 is the large document format
    h.channels = LoadBE16(p + 12);
    h.height = LoadBE32(p + 14);
    h.width = LoadBE32(p + 18);
    h.depth = LoadBE16(p + 22);
    h.mode = LoadBE16(p + 24);
    if (h.channels < 1 || h.channels > kMaxChannels) return false;
    if (h.width < 1 || h.height < 1 || h.width > kMaxSide || h.height > kMaxSide) return false;
    if (!KnownMode(h.mode)) return false;
    const bool bitmap = h.mode == static_cast<int>(PsdColorMode::Bitmap);
    return bitmap ? h.depth == 1 : (h.depth == 8 || h.depth == 16);
}

// A section of the file: a 32-bit length, then that many bytes. Moves `at` past it.
bool ReadSection(std::span<const std::uint8_t> file, std::uint64_t& at,
                 std::span<const std::uint8_t>& body) {
    if (!RangeFits(at, 4, file.size())) return false;
    const std::uint32_t length = LoadBE32(file.data() + at);
    at += 4;
    if (!RangeFits(at, length, file.size())) return false;
    body = file.subspan(static_cast<std::size_t>(at), length);
    at += length;
    return true;
}

// True when the layer information says that the first extra channel of the merged image
// is its transparency: a negative layer count.
bool MergedAlphaFlag(std::span<const std::uint8_t> layerAndMask) {
    if (layerAndMask.size() < 6) return false;
    const std::uint32_t layerInfo = LoadBE32(layerAndMask.data());
    if (layerInfo < 2) return false;
    return static_cast<std::int16_t>(LoadBE16(layerAndMask.data() + 4)) < 0;
}

// The channels that hold colour in each model.
int ColorChannels(const Header& h) {
    switch (static_cast<PsdColorMode>(h.mode)) {
        case PsdColorMode::Rgb:
        case PsdColorMode::Lab:
            return 3;
        case PsdColorMode::Cmyk:
            return 4;
        case PsdColorMode::Multichannel:
            return h.channels >= 3 ? 3 : 1;
        default:
            return 1;
    }
}

// PackBits: a count byte n, then n + 1 literal bytes (n >= 0) or one byte repeated 1 - n
// times (n < 0; -128 is nothing). The row must come out exactly `out.size()` bytes long.
bool UnpackBits(std::span<const std::uint8_t> in, std::span<std::uint8_t> out) {
    std::size_t i = 0;
    std::size_t o = 0;
    while (o < out.size()) {
        if (i >= in.size()) return false;
        const int n = static_cast<std::int8_t>(in[i++]);
        if (n == -128) continue;
        const std::size_t length =
            n >= 0 ? static_cast<std::size_t>(n) + 1 : static_cast<std::size_t>(1 - n);
        if (length > out.size() - o) return false;
        if (n >= 0) {
            if (!RangeFits(i, length, in.size())) return false;
            std::memcpy(out.data() + o, in.data() + i, length);
            i += length;
        } else {
            if (i >= in.size()) return false;
            std::memset(out.data() + o, in[i++], length);
        }
        o += length;
    }
    return true;
}

// The merged image's channels 0 .. count - 1, each as one byte a pixel.
class ChannelReader {
  public:
    ChannelReader(std::span<const std::uint8_t> file, const Header& h)
        : file_(file),
          h_(h),
          rowBytes_(h.depth == 1 ? (std::size_t{h.width} + 7) / 8
                                 : std::size_t{h.width} * static_cast<std::size_t>(h.depth / 8)),
          row_(rowBytes_) {}

    bool Read(std::uint64_t at, int compression, int count,
              std::vector<std::vector<std::uint8_t>>& planes) {
        const std::uint64_t rows = std::uint64_t{h_.height} * static_cast<std::uint64_t>(count);
        if (compression == 0) {
            if (!RangeFits(at, rows * rowBytes_, file_.size())) return false;
        } else if (compression == 1) {
            if (!CheckPackedRows(at, count)) return false;
        } else {
            return false;  // ZIP-compressed image data
        }
        planes.assign(static_cast<std::size_t>(count),
                      std::vector<std::uint8_t>(std::size_t{h_.width} * h_.height));
        std::uint64_t data = compression == 0 ? at : at + TableBytes();
        for (int c = 0; c < count; ++c) {
            for (std::uint32_t y = 0; y < h_.height; ++y) {
                std::span<const std::uint8_t> stored;
                if (compression == 0) {
                    stored = file_.subspan(static_cast<std::size_t>(data), rowBytes_);
                    data += rowBytes_;
                } else {
                    const std::uint16_t length = RowCount(at, c, y);
                    stored = file_.subspan(static_cast<std::size_t>(data), length);
                    data += length;
                    if (!UnpackBits(stored, row_)) return false;
                    stored = row_;
                }
                Samples(stored,
                        planes[static_cast<std::size_t>(c)].data() + std::size_t{y} * h_.width);
            }
        }
        return true;
    }

  private:
    std::uint64_t TableBytes() const {
        return std::uint64_t{h_.height} * static_cast<std::uint64_t>(h_.channels) * 2;
    }
    std::uint16_t RowCount(std::uint64_t table, int channel, std::uint32_t y) const {
        const std::uint64_t index =
            std::uint64_t{h_.height} * static_cast<std::uint64_t>(channel) + y;
        return LoadBE16(file_.data() + table + index * 2);
    }
    // The table of packed row lengths lies in the file, and so do the rows it names.
    bool CheckPackedRows(std::uint64_t table, int count) const {
        if (!RangeFits(table, TableBytes(), file_.size())) return false;
        std::uint64_t total = 0;
        for (int c = 0; c < count; ++c) {
            for (std::uint32_t y = 0; y < h_.height; ++y)
                total += RowCount(table, c, y);
        }
        return RangeFits(table + TableBytes(), total, file_.size());
    }
    void Samples(std::span<const std::uint8_t> stored, std::uint8_t* out) const {
        for (std::uint32_t x = 0; x < h_.width; ++x) {
            if (h_.depth == 1) {
                // Bitmap mode: a set bit is black.
                out[x] = (stored[x / 8] >> (7 - x % 8)) & 1 ? 0 : 255;
            } else {
                out[x] = stored[std::size_t{x} * static_cast<std::size_t>(h_.depth / 8)];
            }
        }
    }

    std::span<const std::uint8_t> file_;
    const Header& h_;
    std::size_t rowBytes_;
    std::vector<std::uint8_t> row_;
};

std::uint8_t Byte(double value) {
    return static_cast<std::uint8_t>(std::clamp(RoundHalfEven(value), 0, 255));
}

// CIE L*a*b* (D50, as Photoshop keeps it) to sRGB.
Rgba LabToRgb(std::uint8_t l, std::uint8_t a, std::uint8_t b) {
    const double fy = (l * 100.0 / 255.0 + 16.0) / 116.0;
    const double fx = fy + (a - 128) / 500.0;
    const double fz = fy - (b - 128) / 200.0;
    auto inverse = [](double f) {
        return f > 6.0 / 29 ? f * f * f : 3 * (6.0 / 29) * (6.0 / 29) * (f - 4.0 / 29);
    };
    const double x = 0.96422 * inverse(fx);
    const double y = inverse(fy);
    const double z = 0.82521 * inverse(fz);
    // XYZ (D50) to linear sRGB, with the Bradford adaptation to D65.
    const double linear[3] = {3.1338561 * x - 1.6168667 * y - 0.4906146 * z,
                              -0.9787684 * x + 1.9161415 * y + 0.0334540 * z,
                              0.0719453 * x - 0.2289914 * y + 1.4052427 * z};
    std::array<std::uint8_t, 3> out{};
    for (int i = 0; i < 3; ++i) {
        const double v = std::clamp(linear[i], 0.0, 1.0);
        const double encoded = v <= 0.0031308 ? 12.92 * v : 1.055 * std::pow(v, 1 / 2.4) - 0.055;
        out[static_cast<std::size_t>(i)] = Byte(encoded * 255);
    }
    return {out[0], out[1], out[2], 255};
}

Rgba PixelColor(const Header& h, const std::vector<std::vector<std::uint8_t>>& planes,
                std::span<const std::uint8_t> palette, std::size_t i) {
    auto channel = [&](int c) { return planes[static_cast<std::size_t>(c)][i]; };
    switch (static_cast<PsdColorMode>(h.mode)) {
        case PsdColorMode::Rgb:
            return {channel(0), channel(1), channel(2), 255};
        case PsdColorMode::Indexed: {
            const std::size_t index = channel(0);
            return {palette[index], palette[256 + index], palette[512 + index], 255};
        }
        case PsdColorMode::Cmyk: {
            // Stored as the ink left out: 255 is no ink.
            const int k = channel(3);
            return {Byte(channel(0) * k / 255.0), Byte(channel(1) * k / 255.0),
                    Byte(channel(2) * k / 255.0), 255};
        }
        case PsdColorMode::Lab:
            return LabToRgb(channel(0), channel(1), channel(2));
        case PsdColorMode::Multichannel:
            if (h.channels >= 3) return {channel(0), channel(1), channel(2), 255};
            [[fallthrough]];
        default: {
            const std::uint8_t grey = channel(0);
            return {grey, grey, grey, 255};
        }
    }
}

// Takes a colour blended over white back off white.
std::uint8_t Unmatte(std::uint8_t stored, std::uint8_t alpha) {
    return Byte((stored - 255.0 + alpha) * 255.0 / alpha);
}

}  // namespace

PsdStatus DecodePsd(std::span<const std::uint8_t> file, const DecodeLimits& limits,
                    bool acceptOtherColorModels, RgbaBuffer& picture) {
    Header h;
    if (!ReadHeader(file, h)) return PsdStatus::Broken;
    if (h.mode != static_cast<int>(PsdColorMode::Rgb) && !acceptOtherColorModels) {
        return PsdStatus::NotRgb;
    }
    if (!FitsLimits(h.width, h.height, limits)) return PsdStatus::TooLarge;
    const int colorChannels = ColorChannels(h);
    if (h.channels < colorChannels) return PsdStatus::Broken;

    std::uint64_t at = kHeaderSize;
    std::span<const std::uint8_t> colorModeData, resources, layerAndMask;
    if (!ReadSection(file, at, colorModeData) || !ReadSection(file, at, resources) ||
        !ReadSection(file, at, layerAndMask) || !RangeFits(at, 2, file.size())) {
        return PsdStatus::Broken;
    }
    if (h.mode == static_cast<int>(PsdColorMode::Indexed) && colorModeData.size() < kPaletteBytes) {
        return PsdStatus::Broken;
    }
    const bool hasAlpha = h.channels > colorChannels && MergedAlphaFlag(layerAndMask);
    const int compression = LoadBE16(file.data() + at);
    std::vector<std::vector<std::uint8_t>> planes;
    ChannelReader reader(file, h);
    if (!reader.Read(at + 2, compression, colorChannels + (hasAlpha ? 1 : 0), planes)) {
        return PsdStatus::Broken;
    }

    RgbaBuffer out(static_cast<int>(h.width), static_cast<int>(h.height));
    std::size_t i = 0;
    for (Rgba& p : out.Pixels()) {
        p = PixelColor(h, planes, colorModeData, i);
        if (hasAlpha) {
            p.a = planes[static_cast<std::size_t>(colorChannels)][i];
            if (p.a == 0) {
                p = {};
            } else if (p.a < 255) {
                p = {Unmatte(p.r, p.a), Unmatte(p.g, p.a), Unmatte(p.b, p.a), p.a};
            }
        }
        ++i;
    }
    picture = std::move(out);
    return PsdStatus::Ok;
}

}  // namespace iw
