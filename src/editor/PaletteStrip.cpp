#include "editor/PaletteStrip.h"

#include <algorithm>
#include <unordered_set>

#include "editor/PixelPlot.h"
#include "imaging/StandardColors.h"

namespace iw {
namespace {

// Twelve hues round the colour wheel, 30 degrees apart, at full saturation and value.
constexpr int kWheel[12][3] = {{255, 0, 0}, {255, 128, 0}, {255, 255, 0}, {128, 255, 0},
                               {0, 255, 0}, {0, 255, 128}, {0, 255, 255}, {0, 128, 255},
                               {0, 0, 255}, {128, 0, 255}, {255, 0, 255}, {255, 0, 128}};

// A hue of the wheel moved half-way towards white (`tint` > 0) or black (`tint` < 0).
PackedColor Hue(int step, int tint) {
    int rgb[3] = {kWheel[step][0], kWheel[step][1], kWheel[step][2]};
    for (int& c : rgb) {
        if (tint > 0) c += (255 - c) / 2;
        if (tint < 0) c /= 2;
    }
    return PackColor(rgb[0], rgb[1], rgb[2]);
}

std::vector<PackedColor> MakeDefaultColors() {
    std::vector<PackedColor> colors(kStandard16Colors.begin(), kStandard16Colors.end());
    for (int tint : {0, 1, -1}) {
        for (int step = 0; step < 12; ++step)
            colors.push_back(Hue(step, tint));
    }
    for (int grey : {64, 96, 160, 224})
        colors.push_back(PackColor(grey, grey, grey));
    // Shades that coincide with a standard colour appear once.
    std::vector<PackedColor> unique;
    for (PackedColor c : colors) {
        if (std::find(unique.begin(), unique.end(), c) == unique.end()) unique.push_back(c);
    }
    return unique;
}

}  // namespace

std::vector<PackedColor> DistinctColors(const IconImage& image, std::size_t limit) {
    std::vector<PackedColor> colors;
    std::unordered_set<PackedColor> seen;
    const int width = ImageWidth(image);
    const int height = ImageHeight(image);
    for (int x = 0; x < width && colors.size() < limit; ++x) {
        for (int y = 0; y < height && colors.size() < limit; ++y) {
            const PackedColor color = image.Color(x, y);
            if (IsMarker(color) || !seen.insert(color).second) continue;
            colors.push_back(color);
        }
    }
    return colors;
}

const std::vector<PackedColor>& DefaultStripColors() {
    static const std::vector<PackedColor> colors = MakeDefaultColors();
    return colors;
}

std::vector<PackedColor> PaletteStripColors(const IconImage& image) {
    std::vector<PackedColor> strip = {TransparentColor, InverseColor};
    std::vector<PackedColor> colors;
    switch (image.info.bitCount) {
        case 1:
            colors.assign(kMonoColors.begin(), kMonoColors.end());
            break;
        case 4:
            colors.assign(kStandard16Colors.begin(), kStandard16Colors.end());
            break;
        case 8:
            colors = DistinctColors(image);
            if (colors.empty()) colors = DefaultStripColors();
            break;
        default:
            colors = DefaultStripColors();
            break;
    }
    strip.insert(strip.end(), colors.begin(), colors.end());
    return strip;
}

}  // namespace iw
