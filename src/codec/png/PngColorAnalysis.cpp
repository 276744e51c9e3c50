#include "codec/png/PngColorAnalysis.h"

#include <algorithm>
#include <cstring>

#include "codec/png/c32bppDIB.h"

namespace iw::png {
namespace {

constexpr std::size_t kMaxPaletteColors = 256;

inline std::uint32_t PackRgba(std::uint8_t r, std::uint8_t g, std::uint8_t b, std::uint8_t a) {
    return static_cast<std::uint32_t>(r) | (static_cast<std::uint32_t>(g) << 8) |
           (static_cast<std::uint32_t>(b) << 16) | (static_cast<std::uint32_t>(a) << 24);
}

// A small open-addressing map from RGBA to a palette index, for at most 257 colours.
class ColorMap {
  public:
    // The colour's index, adding it when new; -1 once the map is full.
    int Insert(std::uint32_t color) {
        std::size_t slot = Hash(color);
        while (used_[slot]) {
            if (keys_[slot] == color) return values_[slot];
            slot = (slot + 1) & (kSlots - 1);
        }
        if (count_ == kCapacity) return -1;
        used_[slot] = true;
        keys_[slot] = color;
        values_[slot] = static_cast<std::int16_t>(count_);
        return count_++;
    }
    int Find(std::uint32_t color) const {
        std::size_t slot = Hash(color);
        while (used_[slot]) {
            if (keys_[slot] == color) return values_[slot];
            slot = (slot + 1) & (kSlots - 1);
        }
        return -1;
    }

  private:
    static constexpr int kCapacity = 257;
    static constexpr std::size_t kSlots = 1024;
    static std::size_t Hash(std::uint32_t color) { return (color * 0x9E3779B1u) >> 22; }
    std::array<std::uint32_t, kSlots> keys_{};
    std::array<std::int16_t, kSlots> values_{};
    std::array<bool, kSlots> used_{};
    int count_ = 0;
};

// 255 / (2^depth - 1): the step between grey levels that a depth holds exactly.
int GreyStep(int depth) {
    return 255 / ((1 << depth) - 1);
}

std::uint8_t PaletteDepth(std::size_t colors) {
    if (colors <= 2) return 1;
    if (colors <= 4) return 2;
    if (colors <= 16) return 4;
    return 8;
}

// Packs one sample of `depth` bits at pixel `x`, most significant bits first.
inline void PutSample(std::uint8_t* row, std::int32_t x, int depth, int value) {
    if (depth == 8) {
        row[x] = static_cast<std::uint8_t>(value);
        return;
    }
    const std::size_t bit = static_cast<std::size_t>(x) * static_cast<std::size_t>(depth);
    row[bit >> 3] |= static_cast<std::uint8_t>(value << (8 - depth - static_cast<int>(bit & 7)));
}

}  // namespace

ColorStats AnalyzeColors(const c32bppDIB& image) {
    ColorStats stats;
    ColorMap map;
    bool overflow = false;
    bool haveKey = false;
    bool keyConsistent = true;
    std::array<bool, 256> greyUsed{};
    std::uint32_t last = 0;
    bool haveLast = false;
    for (std::int32_t y = 0; y < image.Height(); ++y) {
        const std::uint8_t* p = image.TopDownRow(y);
        for (std::int32_t x = 0; x < image.Width(); ++x, p += 4) {
            const std::uint8_t b = p[0], g = p[1], r = p[2], a = p[3];
            const std::uint32_t color = PackRgba(r, g, b, a);
            // Icons are mostly runs of one colour: a repeat changes none of the findings.
            if (haveLast && color == last) continue;
            last = color;
            haveLast = true;
            if (a != 255) {
                stats.opaque = false;
                if (a != 0) stats.binaryAlpha = false;
            }
            if (r == g && g == b) {
                greyUsed[r] = true;
            } else {
                stats.grey = false;
            }
            if (a == 0) {
                if (!haveKey) {
                    stats.key = {r, g, b};
                    haveKey = true;
                } else if (stats.key[0] != r || stats.key[1] != g || stats.key[2] != b) {
                    keyConsistent = false;
                }
            }
            if (!overflow) {
                const int index = map.Insert(color);
                if (index < 0) {
                    overflow = true;
                } else if (static_cast<std::size_t>(index) == stats.colors.size()) {
                    stats.colors.push_back({r, g, b, a});
                }
            }
        }
    }
    if (overflow) stats.colors.clear();
    stats.keyUsable = !stats.opaque && stats.binaryAlpha && haveKey && keyConsistent;
    if (stats.keyUsable) {
        // The key works only when no opaque pixel has the transparent pixels' colour.
        for (std::int32_t y = 0; y < image.Height() && stats.keyUsable; ++y) {
            const std::uint8_t* p = image.TopDownRow(y);
            for (std::int32_t x = 0; x < image.Width(); ++x, p += 4) {
                if (p[3] == 255 && p[2] == stats.key[0] && p[1] == stats.key[1] &&
                    p[0] == stats.key[2]) {
                    stats.keyUsable = false;
                    break;
                }
            }
        }
    }
    if (stats.grey) {
        for (std::uint8_t depth : {1, 2, 4, 8}) {
            const int step = GreyStep(depth);
            bool fits = true;
            for (int level = 0; level < 256 && fits; ++level)
                fits = !greyUsed[level] || level % step == 0;
            if (fits) {
                stats.greyDepth = depth;
                break;
            }
        }
    }
    return stats;
}

std::vector<Encoding> CandidateEncodings(const ColorStats& stats, std::int32_t width,
                                         std::int32_t height) {
    Encoding direct;
    if (stats.grey && (stats.opaque || stats.keyUsable)) {
        direct.colorType = kGrey;
        direct.bitDepth = stats.greyDepth;
        if (!stats.opaque) {
            const auto level = static_cast<std::uint16_t>(stats.key[0] / GreyStep(stats.greyDepth));
            direct.transparent = std::array<std::uint16_t, 3>{level, 0, 0};
        }
    } else if (stats.grey) {
        direct.colorType = kGreyAlpha;
    } else if (stats.opaque || stats.keyUsable) {
        direct.colorType = kRgb;
        if (!stats.opaque) {
            direct.transparent =
                std::array<std::uint16_t, 3>{stats.key[0], stats.key[1], stats.key[2]};
        }
    } else {
        direct.colorType = kRgba;
    }
    if (stats.colors.empty() || stats.colors.size() > kMaxPaletteColors) return {direct};

    Encoding palette;
    palette.colorType = kPalette;
    palette.bitDepth = PaletteDepth(stats.colors.size());
    palette.palette = stats.colors;
    // Entries with alpha below 255 go first, so that tRNS needs only as many bytes.
    std::stable_partition(palette.palette.begin(), palette.palette.end(),
                          [](const auto& c) { return c[3] != 255; });
    palette.paletteAlphaCount = static_cast<std::size_t>(std::count_if(
        palette.palette.begin(), palette.palette.end(), [](const auto& c) { return c[3] != 255; }));

    constexpr std::int32_t kSmallSide = 48;
    if (width <= kSmallSide && height <= kSmallSide) return {palette, direct};
    // A grey image stores the same number of bits or fewer without the palette chunk.
    if (direct.colorType == kGrey && direct.bitDepth <= palette.bitDepth) return {direct};
    return {palette};
}

std::size_t RowBytes(const Encoding& encoding, std::int32_t width) {
    return static_cast<std::size_t>(
        *PackedRowBytes(static_cast<std::uint64_t>(width), encoding.colorType, encoding.bitDepth));
}

std::vector<std::uint8_t> PackRows(const c32bppDIB& image, const Encoding& encoding) {
    const std::int32_t width = image.Width();
    const std::size_t rowBytes = RowBytes(encoding, width);
    std::vector<std::uint8_t> rows(rowBytes * static_cast<std::size_t>(image.Height()), 0);
    ColorMap map;
    if (encoding.colorType == kPalette) {
        for (const auto& c : encoding.palette)
            map.Insert(PackRgba(c[0], c[1], c[2], c[3]));
    }
    const int depth = encoding.bitDepth;
    const int greyStep = encoding.colorType == kGrey ? GreyStep(depth) : 1;
    for (std::int32_t y = 0; y < image.Height(); ++y) {
        const std::uint8_t* p = image.TopDownRow(y);
        std::uint8_t* out = rows.data() + static_cast<std::size_t>(y) * rowBytes;
        switch (encoding.colorType) {
            case kGrey:
                for (std::int32_t x = 0; x < width; ++x)
                    PutSample(out, x, depth, p[4 * x + 2] / greyStep);
                break;
            case kGreyAlpha:
                for (std::int32_t x = 0; x < width; ++x) {
                    out[2 * x] = p[4 * x + 2];
                    out[2 * x + 1] = p[4 * x + 3];
                }
                break;
            case kRgb:
                for (std::int32_t x = 0; x < width; ++x) {
                    out[3 * x] = p[4 * x + 2];
                    out[3 * x + 1] = p[4 * x + 1];
                    out[3 * x + 2] = p[4 * x];
                }
                break;
            case kRgba:
                for (std::int32_t x = 0; x < width; ++x) {
                    out[4 * x] = p[4 * x + 2];
                    out[4 * x + 1] = p[4 * x + 1];
                    out[4 * x + 2] = p[4 * x];
                    out[4 * x + 3] = p[4 * x + 3];
                }
                break;
            case kPalette: {
                std::uint32_t last = 0;
                int lastIndex = -1;
                for (std::int32_t x = 0; x < width; ++x) {
                    const std::uint8_t* q = p + 4 * x;
                    const std::uint32_t color = PackRgba(q[2], q[1], q[0], q[3]);
                    if (lastIndex < 0 || color != last) {
                        last = color;
                        lastIndex = map.Find(color);
                    }
                    PutSample(out, x, depth, lastIndex);
                }
                break;
            }
            default:
                break;
        }
    }
    return rows;
}

}  // namespace iw::png
