#pragma once
// Builds ICO and CUR bytes in tests from a plain description, so that every test states
// the layout it needs instead of carrying an opaque blob.

#include <cstdint>
#include <functional>
#include <vector>

namespace iw::test {

using Bytes = std::vector<std::uint8_t>;

void PutLE16(Bytes& out, std::size_t at, std::uint16_t value);
void PutLE32(Bytes& out, std::size_t at, std::uint32_t value);
void AppendLE16(Bytes& out, std::uint16_t value);
void AppendLE32(Bytes& out, std::uint32_t value);

struct Rgba {
    std::uint8_t r = 0, g = 0, b = 0, a = 255;
    bool operator==(const Rgba&) const = default;
};

// One bitmap entry. Pixels are given top row first; `pixel(x, y)` returns the colour (for
// 1/4/8 bits the palette index in .r) and `masked(x, y)` the mask bit.
struct BitmapSpec {
    int width = 16;
    int height = 16;
    int bitCount = 32;
    std::vector<Rgba> palette;  // 2^bitCount entries are written; missing ones are black
    std::function<Rgba(int x, int y)> pixel = [](int, int) { return Rgba{}; };
    std::function<bool(int x, int y)> masked = [](int, int) { return false; };
};

// The bitmap data of one entry: header, palette, colour rows and mask rows, bottom-up.
Bytes BuildBitmap(const BitmapSpec& spec);

struct EntrySpec {
    Bytes data;      // bitmap or PNG bytes
    int width = 16;  // written to the directory (256 as 0)
    int height = 16;
    int bitCount = 32;  // or hotspot y for cursors
    int planes = 1;     // or hotspot x for cursors
    std::uint8_t colorCount = 0;
    std::uint8_t reserved = 0;
};

// Header, directory and the entries' data in order. `type` 1 = icon, 2 = cursor.
Bytes BuildIconFile(const std::vector<EntrySpec>& entries, std::uint16_t type = 1);

EntrySpec BitmapEntry(const BitmapSpec& spec);

}  // namespace iw::test
