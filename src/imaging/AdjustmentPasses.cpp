// The four adjustment passes. Each builds its lookup table once and then runs over the
// image; every pixel is independent of the others, so the rows are walked in memory order.

#include <array>
#include <cmath>
#include <cstdint>

#include "imaging/Adjustments.h"
#include "imaging/ColorMapping.h"
#include "imaging/Rounding.h"

namespace iw {

namespace {

// The working channels of one pixel.
struct Pixel {
    int red;
    int green;
    int blue;
    int alpha;
};

int Clamp255(int v) {
    return v < 0 ? 0 : (v > 255 ? 255 : v);
}

// Runs `change` over every pixel that is not a marker, then clamps the channels, forces
// the colour to the image's depth and writes colour and alpha back.
template <typename Change>
void ForEachPixel(IconImage& image, Change change) {
    const int width = image.info.Width();
    const int height = image.info.Height();
    const int bitCount = image.info.bitCount;
    for (int y = 0; y < height; ++y) {
        std::int32_t* colors = image.Row(y, IconImage::ColorPlane).data();
        std::int32_t* alphas = image.Row(y, IconImage::AlphaPlane).data();
        for (int x = 0; x < width; ++x) {
            const PackedColor c = colors[x];
            if (IsMarker(c)) continue;
            Pixel p{c & 0xFF, (c & 0xFF00) >> 8, (c & 0xFF0000) >> 16, alphas[x]};
            change(p);
            PackedColor result = Clamp255(p.red) | Clamp255(p.green) << 8 | Clamp255(p.blue) << 16;
            if (bitCount == 1) result = ConvertToMonoColor(result);
            if (bitCount == 4) result = ConvertTo16Color(result);
            colors[x] = result;
            alphas[x] = Clamp255(p.alpha);
        }
    }
}

// Applies `table` to the channels that brightness, gamma and saturation select: red,
// green and blue with optAll, one of them with its own option, the alpha only with
// optAlpha.
template <typename Table>
void ApplyToSelected(Pixel& p, AdjustChannel channel, const Table& table) {
    switch (channel) {
        case AdjustChannel::All:
            p.red = table[static_cast<std::size_t>(p.red)];
            p.green = table[static_cast<std::size_t>(p.green)];
            p.blue = table[static_cast<std::size_t>(p.blue)];
            break;
        case AdjustChannel::Red:
            p.red = table[static_cast<std::size_t>(p.red)];
            break;
        case AdjustChannel::Green:
            p.green = table[static_cast<std::size_t>(p.green)];
            break;
        case AdjustChannel::Blue:
            p.blue = table[static_cast<std::size_t>(p.blue)];
            break;
        case AdjustChannel::Alpha:
            p.alpha = table[static_cast<std::size_t>(Clamp255(p.alpha))];
    }
}

// L(i) = i / 3 for i = 0..765: the grey level of a channel sum, without dividing per pixel.
const std::array<std::uint8_t, 766>& ThirdsTable() {
    static const std::array<std::uint8_t, 766> table = [] {
        std::array<std::uint8_t, 766> t{};
        for (int i = 0; i < 766; ++i)
            t[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(i / 3);
        return t;
    }();
    return table;
}

// The slider's value mapped to -100 .. +100.
double CentredValue(int value) {
    return value / 100.0 * 200.0 - 100.0;
}

// Contrast's overflow rule: a channel beyond the range lends half its excess (truncated
// towards zero) to each of the other two, blue first, then green, then red, until all
// three fit. All at or below 0 become 0 and all at or above 255 become 255 at once.
void SpreadOverflow(int& r, int& g, int& b) {
    auto inRange = [](int v) { return v >= 0 && v <= 255; };
    // The excess halves on each hand-over, so a few rounds always settle it; the bound
    // only guards the loop, and the clamp that follows catches anything left.
    for (int round = 0; round < 64 && !(inRange(r) && inRange(g) && inRange(b)); ++round) {
        if (r <= 0 && g <= 0 && b <= 0) r = g = b = 0;
        if (r >= 255 && g >= 255 && b >= 255) r = g = b = 255;
        auto lend = [](int& from, int& to1, int& to2) {
            if (from < 0) {
                to1 += from / 2;
                to2 += from / 2;
                from = 0;
            } else if (from > 255) {
                to1 += (from - 255) / 2;
                to2 += (from - 255) / 2;
                from = 255;
            }
        };
        lend(b, r, g);
        lend(g, b, r);
        lend(r, g, b);
    }
}

// Which of the new values a pixel keeps under a channel option, for contrast and for
// saturation alike. optBlue deliberately gives the red channel the pixel's previous blue.
// With optAlpha the new value is in `red` and goes to the alpha.
void KeepSelected(Pixel& p, const Pixel& before, int red, int green, int blue,
                  AdjustChannel channel) {
    switch (channel) {
        case AdjustChannel::All:
            p.red = red;
            p.green = green;
            p.blue = blue;
            break;
        case AdjustChannel::Red:
            p.red = red;
            break;
        case AdjustChannel::Green:
            p.green = green;
            break;
        case AdjustChannel::Blue:
            p.blue = blue;
            p.red = before.blue;
            break;
        case AdjustChannel::Alpha:
            p.alpha = red;
            break;
    }
}

}  // namespace

void DoBrightness(IconImage& image, int value, AdjustChannel channel) {
    const int b = RoundHalfEven(value / 100.0 * 100.0);
    const int shift = (b - 50) * 5;
    std::array<int, 256> table{};
    for (int c = 0; c < 256; ++c)
        table[static_cast<std::size_t>(c)] = c + shift;
    ForEachPixel(image, [&](Pixel& p) { ApplyToSelected(p, channel, table); });
}

void DoGamma(IconImage& image, int value, AdjustChannel channel) {
    double g = value / 100.0 * 200.0;
    if (g < 1.0) g = 1.0;
    const double exponent = 1.0 / (g / 100.0);
    std::array<int, 256> table{};
    for (int c = 0; c < 256; ++c) {
        table[static_cast<std::size_t>(c)] = RoundHalfEven(255.0 * std::pow(c / 255.0, exponent));
    }
    ForEachPixel(image, [&](Pixel& p) { ApplyToSelected(p, channel, table); });
}

void DoContrast(IconImage& image, int value, AdjustChannel channel) {
    const auto& thirds = ThirdsTable();
    const int width = image.info.Width();
    const int height = image.info.Height();
    // The mean grey over every pixel; marker values are split into channels like colours.
    long long sum = 0;
    for (int y = 0; y < height; ++y) {
        for (const std::int32_t c :
             image.Row(y, IconImage::ColorPlane).first(static_cast<std::size_t>(width))) {
            sum += thirds[static_cast<std::size_t>((c & 0xFF) + ((c & 0xFF00) >> 8) +
                                                   ((c & 0xFF0000) >> 16))];
        }
    }
    const auto mean = static_cast<int>(sum / (static_cast<long long>(width) * height));

    // f in single precision, as the factor is held; T(i) = m + (i - m) x f, rounded.
    const auto factor = static_cast<float>((100.0 + CentredValue(value)) / 100.0);
    std::array<int, 256> table{};
    for (int i = 0; i < 256; ++i) {
        table[static_cast<std::size_t>(i)] =
            RoundHalfEven(mean + (i - mean) * static_cast<double>(factor));
    }

    ForEachPixel(image, [&](Pixel& p) {
        const Pixel before = p;
        int r, g, b;
        if (channel == AdjustChannel::Alpha) {
            r = g = b = table[static_cast<std::size_t>(Clamp255(p.alpha))];
        } else {
            r = table[static_cast<std::size_t>(p.red)];
            g = table[static_cast<std::size_t>(p.green)];
            b = table[static_cast<std::size_t>(p.blue)];
        }
        SpreadOverflow(r, g, b);
        KeepSelected(p, before, r, g, b, channel);
    });
}

// With a single channel option the new values are kept as contrast keeps them: the
// chosen channel only, optBlue with the same crossover of the previous blue into red, and
// optAlpha moving the alpha away from the pixel's grey.
void DoSat(IconImage& image, int value, AdjustChannel channel) {
    const auto& thirds = ThirdsTable();
    // round(c + (c - y) x f) without floating point per pixel. With f held in single
    // precision, (c - y) x f and c + (c - y) x f are exact in double, so the rounded
    // result minus c depends only on c - y and on whether c is odd (a shift by 2 keeps
    // where an exact half goes). One table per parity, indexed by c - y + 255.
    const auto factor = static_cast<double>(static_cast<float>(CentredValue(value) / 100.0));
    std::array<std::array<int, 511>, 2> offset{};
    for (int parity = 0; parity < 2; ++parity) {
        for (int d = -255; d <= 255; ++d) {
            offset[static_cast<std::size_t>(parity)][static_cast<std::size_t>(d + 255)] =
                RoundHalfEven(parity + d * factor) - parity;
        }
    }
    auto saturate = [&offset](int c, int grey) {
        return c +
               offset[static_cast<std::size_t>(c & 1)][static_cast<std::size_t>(c - grey + 255)];
    };
    ForEachPixel(image, [&](Pixel& p) {
        const Pixel before = p;
        const int grey = thirds[static_cast<std::size_t>(p.red + p.green + p.blue)];
        if (channel == AdjustChannel::Alpha) {
            KeepSelected(p, before, saturate(Clamp255(p.alpha), grey), 0, 0, channel);
        } else {
            KeepSelected(p, before, saturate(p.red, grey), saturate(p.green, grey),
                         saturate(p.blue, grey), channel);
        }
    });
}

}  // namespace iw
