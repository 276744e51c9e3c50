#include "support/IcoBuilder.h"

namespace iw::test {

void PutLE16(Bytes& out, std::size_t at, std::uint16_t value) {
    out[at] = static_cast<std::uint8_t>(value);
    out[at + 1] = static_cast<std::uint8_t>(value >> 8);
}

void PutLE32(Bytes& out, std::size_t at, std::uint32_t value) {
    for (int i = 0; i < 4; ++i)
        out[at + i] = static_cast<std::uint8_t>(value >> (8 * i));
}

void AppendLE16(Bytes& out, std::uint16_t value) {
    out.resize(out.size() + 2);
    PutLE16(out, out.size() - 2, value);
}

void AppendLE32(Bytes& out, std::uint32_t value) {
    out.resize(out.size() + 4);
    PutLE32(out, out.size() - 4, value);
}

Bytes BuildBitmap(const BitmapSpec& spec) {
    const int w = spec.width, h = spec.height, bpp = spec.bitCount;
    const std::size_t stride = ((static_cast<std::size_t>(w) * bpp + 31) / 32) * 4;
    const std::size_t maskStride = ((static_cast<std::size_t>(w) + 31) / 32) * 4;
    Bytes out;
    AppendLE32(out, 40);
    AppendLE32(out, static_cast<std::uint32_t>(w));
    AppendLE32(out, static_cast<std::uint32_t>(h * 2));
    AppendLE16(out, 1);
    AppendLE16(out, static_cast<std::uint16_t>(bpp));
    AppendLE32(out, 0);
    AppendLE32(out, static_cast<std::uint32_t>((stride + maskStride) * h));
    for (int i = 0; i < 4; ++i)
        AppendLE32(out, 0);
    if (bpp <= 8) {
        for (int i = 0; i < (1 << bpp); ++i) {
            Rgba c = i < static_cast<int>(spec.palette.size()) ? spec.palette[i] : Rgba{};
            out.insert(out.end(), {c.b, c.g, c.r, 0});
        }
    }
    for (int row = h - 1; row >= 0; --row) {
        Bytes line(stride, 0);
        for (int x = 0; x < w; ++x) {
            Rgba c = spec.pixel(x, row);
            if (bpp <= 8) {
                const int perByte = 8 / bpp;
                const int shift = 8 - bpp * (x % perByte + 1);
                line[x / perByte] |= static_cast<std::uint8_t>((c.r & ((1 << bpp) - 1)) << shift);
            } else {
                const std::size_t at = static_cast<std::size_t>(x) * (bpp / 8);
                line[at] = c.b;
                line[at + 1] = c.g;
                line[at + 2] = c.r;
                if (bpp == 32) line[at + 3] = c.a;
            }
        }
        out.insert(out.end(), line.begin(), line.end());
    }
    for (int row = h - 1; row >= 0; --row) {
        Bytes line(maskStride, 0);
        for (int x = 0; x < w; ++x) {
            if (spec.masked(x, row)) line[x / 8] |= static_cast<std::uint8_t>(0x80 >> (x % 8));
        }
        out.insert(out.end(), line.begin(), line.end());
    }
    return out;
}

EntrySpec BitmapEntry(const BitmapSpec& spec) {
    EntrySpec entry;
    entry.data = BuildBitmap(spec);
    entry.width = spec.width;
    entry.height = spec.height;
    entry.bitCount = spec.bitCount;
    entry.colorCount = spec.bitCount == 1 ? 2 : spec.bitCount == 4 ? 16 : 0;
    return entry;
}

Bytes BuildIconFile(const std::vector<EntrySpec>& entries, std::uint16_t type) {
    Bytes out;
    AppendLE16(out, 0);
    AppendLE16(out, type);
    AppendLE16(out, static_cast<std::uint16_t>(entries.size()));
    std::uint32_t offset = static_cast<std::uint32_t>(6 + 16 * entries.size());
    for (const EntrySpec& e : entries) {
        out.push_back(static_cast<std::uint8_t>(e.width >= 256 ? 0 : e.width));
        out.push_back(static_cast<std::uint8_t>(e.height >= 256 ? 0 : e.height));
        out.push_back(e.colorCount);
        out.push_back(e.reserved);
        AppendLE16(out, static_cast<std::uint16_t>(e.planes));
        AppendLE16(out, static_cast<std::uint16_t>(e.bitCount));
        AppendLE32(out, static_cast<std::uint32_t>(e.data.size()));
        AppendLE32(out, offset);
        offset += static_cast<std::uint32_t>(e.data.size());
    }
    for (const EntrySpec& e : entries)
        out.insert(out.end(), e.data.begin(), e.data.end());
    return out;
}

}  // namespace iw::test
