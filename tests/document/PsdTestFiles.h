#pragma once
// Builds Photoshop files in the tests from a plain description.

#include <cstdint>
#include <functional>
#include <vector>

namespace iw::test {

struct PsdSpec {
    int width = 4, height = 3, channels = 3, depth = 8;
    int mode = 3;         // RGB
    int compression = 0;  // 0 raw, 1 PackBits
    bool mergedAlpha = false;
    std::vector<std::uint8_t> colorModeData;
    // Channel c's sample at (x, y): 8 or 16 bits by the depth; 0 or 1 at 1 bit.
    std::function<int(int c, int x, int y)> sample = [](int c, int x, int y) {
        return (c * 70 + x * 20 + y * 50) & 0xFF;
    };
};

inline void AppendBE(std::vector<std::uint8_t>& out, std::uint32_t v, int bytes) {
    for (int i = bytes - 1; i >= 0; --i)
        out.push_back(static_cast<std::uint8_t>(v >> (8 * i)));
}

// PackBits with a repeat for every run of two or more equal bytes, single literals otherwise.
inline std::vector<std::uint8_t> PackBits(const std::vector<std::uint8_t>& row) {
    std::vector<std::uint8_t> out;
    for (std::size_t i = 0, run = 1; i < row.size(); i += run, run = 1) {
        while (i + run < row.size() && run < 128 && row[i + run] == row[i])
            ++run;
        out.push_back(static_cast<std::uint8_t>(run == 1 ? 0 : 257 - run));
        out.push_back(row[i]);
    }
    return out;
}

inline std::vector<std::uint8_t> BuildPsd(const PsdSpec& s) {
    std::vector<std::uint8_t> out = {'8', 'B', 'P', 'S', 0, 1, 0, 0, 0, 0, 0, 0};
    AppendBE(out, static_cast<std::uint32_t>(s.channels), 2);
    AppendBE(out, static_cast<std::uint32_t>(s.height), 4);
    AppendBE(out, static_cast<std::uint32_t>(s.width), 4);
    AppendBE(out, static_cast<std::uint32_t>(s.depth), 2);
    AppendBE(out, static_cast<std::uint32_t>(s.mode), 2);
    AppendBE(out, static_cast<std::uint32_t>(s.colorModeData.size()), 4);
    out.insert(out.end(), s.colorModeData.begin(), s.colorModeData.end());
    AppendBE(out, 0, 4);  // image resources
    // Layer and mask information: a layer count of -1 marks the merged transparency.
    if (s.mergedAlpha) {
        AppendBE(out, 6, 4), AppendBE(out, 2, 4), AppendBE(out, 0xFFFF, 2);
    } else {
        AppendBE(out, 0, 4);
    }
    AppendBE(out, static_cast<std::uint32_t>(s.compression), 2);
    std::vector<std::uint8_t> counts, data;
    for (int c = 0; c < s.channels; ++c) {
        for (int y = 0; y < s.height; ++y) {
            std::vector<std::uint8_t> row(s.depth == 1 ? static_cast<std::size_t>((s.width + 7) / 8)
                                                       : 0);
            for (int x = 0; x < s.width; ++x) {
                const int v = s.sample(c, x, y);
                if (s.depth == 1 && v)
                    row[static_cast<std::size_t>(x / 8)] |=
                        static_cast<std::uint8_t>(0x80 >> (x % 8));
                if (s.depth > 1) AppendBE(row, static_cast<std::uint32_t>(v), s.depth / 8);
            }
            if (s.compression == 1) row = PackBits(row);
            AppendBE(counts, static_cast<std::uint32_t>(row.size()), 2);
            data.insert(data.end(), row.begin(), row.end());
        }
    }
    if (s.compression == 1) out.insert(out.end(), counts.begin(), counts.end());
    out.insert(out.end(), data.begin(), data.end());
    return out;
}

}  // namespace iw::test
