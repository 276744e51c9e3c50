#pragma once
// Builds Photoshop files in the tests from a plain description.

#include <cstdint>
#include <functional>
#include <vector>

namespace iw::test {

struct PsdSpec {
    int width = 4;
    int height = 3;
    int channels = 3;
    int depth = 8;
    int mode = 3;         // RGB
    int compression = 0;  // 0 raw, 1 PackBits
    bool mergedAlpha = false;
    std::vector<std::uint8_t> colorModeData;
    // The sample of channel c at (x, y): a byte, or (16 bits) a 16-bit value; 1 bit: 0/1.
    std::function<int(int c, int x, int y)> sample = [](int c, int x, int y) {
        return (c * 70 + x * 20 + y * 50) & 0xFF;
    };
};

inline void AppendBE16(std::vector<std::uint8_t>& out, unsigned v) {
    out.push_back(static_cast<std::uint8_t>(v >> 8));
    out.push_back(static_cast<std::uint8_t>(v));
}
inline void AppendBE32(std::vector<std::uint8_t>& out, std::uint32_t v) {
    AppendBE16(out, v >> 16);
    AppendBE16(out, v & 0xFFFF);
}

// PackBits in runs of at most 128: repeats of three or more, literals otherwise.
inline std::vector<std::uint8_t> PackBits(const std::vector<std::uint8_t>& row) {
    std::vector<std::uint8_t> out;
    std::size_t i = 0;
    while (i < row.size()) {
        std::size_t run = 1;
        while (i + run < row.size() && run < 128 && row[i + run] == row[i])
            ++run;
        if (run >= 3) {
            out.push_back(static_cast<std::uint8_t>(1 - static_cast<int>(run)));
            out.push_back(row[i]);
            i += run;
            continue;
        }
        std::size_t literal = 1;
        while (i + literal < row.size() && literal < 128 &&
               !(i + literal + 2 < row.size() && row[i + literal] == row[i + literal + 1] &&
                 row[i + literal] == row[i + literal + 2]))
            ++literal;
        out.push_back(static_cast<std::uint8_t>(literal - 1));
        out.insert(out.end(), row.begin() + static_cast<std::ptrdiff_t>(i),
                   row.begin() + static_cast<std::ptrdiff_t>(i + literal));
        i += literal;
    }
    return out;
}

inline std::vector<std::uint8_t> BuildPsd(const PsdSpec& s) {
    std::vector<std::uint8_t> out = {'8', 'B', 'P', 'S'};
    AppendBE16(out, 1);
    out.insert(out.end(), 6, 0);
    AppendBE16(out, static_cast<unsigned>(s.channels));
    AppendBE32(out, static_cast<std::uint32_t>(s.height));
    AppendBE32(out, static_cast<std::uint32_t>(s.width));
    AppendBE16(out, static_cast<unsigned>(s.depth));
    AppendBE16(out, static_cast<unsigned>(s.mode));
    AppendBE32(out, static_cast<std::uint32_t>(s.colorModeData.size()));
    out.insert(out.end(), s.colorModeData.begin(), s.colorModeData.end());
    AppendBE32(out, 0);  // image resources
    if (s.mergedAlpha) {
        AppendBE32(out, 6);  // layer and mask information: layer info of one count, -1
        AppendBE32(out, 2);
        AppendBE16(out, 0xFFFF);
    } else {
        AppendBE32(out, 0);
    }
    AppendBE16(out, static_cast<unsigned>(s.compression));
    std::vector<std::vector<std::uint8_t>> rows;
    for (int c = 0; c < s.channels; ++c) {
        for (int y = 0; y < s.height; ++y) {
            std::vector<std::uint8_t> row;
            if (s.depth == 1) row.assign(static_cast<std::size_t>((s.width + 7) / 8), 0);
            for (int x = 0; x < s.width; ++x) {
                const int v = s.sample(c, x, y);
                if (s.depth == 1) {
                    if (v)
                        row[static_cast<std::size_t>(x / 8)] |=
                            static_cast<std::uint8_t>(0x80 >> (x % 8));
                } else if (s.depth == 16) {
                    AppendBE16(row, static_cast<unsigned>(v));
                } else {
                    row.push_back(static_cast<std::uint8_t>(v));
                }
            }
            rows.push_back(s.compression == 1 ? PackBits(row) : row);
        }
    }
    if (s.compression == 1) {
        for (const auto& row : rows)
            AppendBE16(out, static_cast<unsigned>(row.size()));
    }
    for (const auto& row : rows)
        out.insert(out.end(), row.begin(), row.end());
    return out;
}

}  // namespace iw::test
