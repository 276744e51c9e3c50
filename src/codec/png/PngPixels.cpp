#include "codec/png/PngPixels.h"

namespace iw::png {
namespace {

// Sixteen-bit samples keep their high byte: the 8-bit value whose 16-bit expansion
// (v x 257) lies at or below the sample.
inline std::uint8_t To8(const std::uint8_t* sample) {
    return sample[0];
}
inline std::uint16_t Load16(const std::uint8_t* p) {
    return static_cast<std::uint16_t>((p[0] << 8) | p[1]);
}

inline void Put(std::uint8_t* out, std::uint8_t r, std::uint8_t g, std::uint8_t b, std::uint8_t a) {
    out[0] = b;
    out[1] = g;
    out[2] = r;
    out[3] = a;
}

}  // namespace

void ConvertRow(const std::uint8_t* in, std::uint32_t count, const PixelSource& src,
                std::uint8_t* out, std::size_t step) {
    const auto& key = src.transparent;
    switch (src.colorType) {
        case kGrey:
            if (src.bitDepth < 8) {
                const int depth = src.bitDepth;
                const int mask = (1 << depth) - 1;
                const int scale = 255 / mask;  // 255, 85 or 17: the full range, exactly
                for (std::uint32_t i = 0; i < count; ++i, out += step) {
                    // Sub-byte samples are packed from the most significant bits first.
                    const std::uint32_t bit = i * static_cast<std::uint32_t>(depth);
                    const int v = (in[bit >> 3] >> (8 - depth - static_cast<int>(bit & 7))) & mask;
                    const auto g = static_cast<std::uint8_t>(v * scale);
                    Put(out, g, g, g, key && (*key)[0] == v ? 0 : 255);
                }
            } else if (src.bitDepth == 8) {
                for (std::uint32_t i = 0; i < count; ++i, out += step) {
                    const std::uint8_t g = in[i];
                    Put(out, g, g, g, key && (*key)[0] == g ? 0 : 255);
                }
            } else {
                for (std::uint32_t i = 0; i < count; ++i, out += step) {
                    const std::uint8_t* p = in + 2 * i;
                    const std::uint8_t g = To8(p);
                    Put(out, g, g, g, key && (*key)[0] == Load16(p) ? 0 : 255);
                }
            }
            break;
        case kRgb:
            if (src.bitDepth == 8) {
                for (std::uint32_t i = 0; i < count; ++i, out += step) {
                    const std::uint8_t* p = in + 3 * i;
                    const bool clear =
                        key && (*key)[0] == p[0] && (*key)[1] == p[1] && (*key)[2] == p[2];
                    Put(out, p[0], p[1], p[2], clear ? 0 : 255);
                }
            } else {
                for (std::uint32_t i = 0; i < count; ++i, out += step) {
                    const std::uint8_t* p = in + 6 * i;
                    const bool clear = key && (*key)[0] == Load16(p) &&
                                       (*key)[1] == Load16(p + 2) && (*key)[2] == Load16(p + 4);
                    Put(out, To8(p), To8(p + 2), To8(p + 4), clear ? 0 : 255);
                }
            }
            break;
        case kPalette: {
            const int depth = src.bitDepth;
            const int mask = (1 << depth) - 1;
            for (std::uint32_t i = 0; i < count; ++i, out += step) {
                const std::uint32_t bit = i * static_cast<std::uint32_t>(depth);
                const int index =
                    depth == 8 ? in[i]
                               : (in[bit >> 3] >> (8 - depth - static_cast<int>(bit & 7))) & mask;
                const auto& entry = src.palette[static_cast<std::size_t>(index)];
                out[0] = entry[0];
                out[1] = entry[1];
                out[2] = entry[2];
                out[3] = entry[3];
            }
            break;
        }
        case kGreyAlpha:
            if (src.bitDepth == 8) {
                for (std::uint32_t i = 0; i < count; ++i, out += step) {
                    const std::uint8_t* p = in + 2 * i;
                    Put(out, p[0], p[0], p[0], p[1]);
                }
            } else {
                for (std::uint32_t i = 0; i < count; ++i, out += step) {
                    const std::uint8_t* p = in + 4 * i;
                    Put(out, To8(p), To8(p), To8(p), To8(p + 2));
                }
            }
            break;
        case kRgba:
            if (src.bitDepth == 8) {
                for (std::uint32_t i = 0; i < count; ++i, out += step) {
                    const std::uint8_t* p = in + 4 * i;
                    Put(out, p[0], p[1], p[2], p[3]);
                }
            } else {
                for (std::uint32_t i = 0; i < count; ++i, out += step) {
                    const std::uint8_t* p = in + 8 * i;
                    Put(out, To8(p), To8(p + 2), To8(p + 4), To8(p + 6));
                }
            }
            break;
        default:
            break;
    }
}

void PlacePass(const PassLayout& pass, const std::uint8_t* rows, const PixelSource& source,
               std::uint8_t* top, std::ptrdiff_t pitch) {
    const std::size_t step = 4 * static_cast<std::size_t>(pass.dx);
    for (std::uint32_t r = 0; r < pass.rows; ++r) {
        const std::uint32_t y = pass.y0 + r * pass.dy;
        std::uint8_t* out =
            top + static_cast<std::ptrdiff_t>(y) * pitch + 4 * static_cast<std::ptrdiff_t>(pass.x0);
        ConvertRow(rows + static_cast<std::size_t>(r) * (pass.rowBytes + 1) + 1, pass.columns,
                   source, out, step);
    }
}

}  // namespace iw::png
