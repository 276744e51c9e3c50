#include "imaging/ColorModel.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "imaging/Rounding.h"
#include "services/core/ParseInteger.h"

namespace iw {
namespace {

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

}  // namespace

Hsv RgbToHsv(PackedColor color) {
    const double r = RedOf(color) / 255.0;
    const double g = GreenOf(color) / 255.0;
    const double b = BlueOf(color) / 255.0;
    const double high = std::max({r, g, b});
    const double low = std::min({r, g, b});
    const double range = high - low;
    Hsv hsv;
    hsv.value = high;
    hsv.saturation = high > 0 ? range / high : 0;
    if (range <= 0) return hsv;
    double hue = 0;
    if (high == r) {
        hue = (g - b) / range;
    } else if (high == g) {
        hue = 2 + (b - r) / range;
    } else {
        hue = 4 + (r - g) / range;
    }
    hue *= 60;
    if (hue < 0) hue += 360;
    hsv.hue = hue >= 360 ? hue - 360 : hue;
    return hsv;
}

PackedColor HsvToRgb(const Hsv& hsv) {
    double hue = std::isfinite(hsv.hue) ? std::fmod(hsv.hue, 360.0) : 0;
    if (hue < 0) hue += 360;
    const auto unit = [](double v) { return std::isfinite(v) ? std::clamp(v, 0.0, 1.0) : 0.0; };
    const double s = unit(hsv.saturation);
    const double v = unit(hsv.value);
    const double sector = hue / 60;
    const int whole = std::min(static_cast<int>(sector), 5);
    const double f = sector - whole;
    const double p = v * (1 - s);
    const double q = v * (1 - s * f);
    const double t = v * (1 - s * (1 - f));
    const std::array<std::array<double, 3>, 6> sectors = {{
        {v, t, p},
        {q, v, p},
        {p, v, t},
        {p, q, v},
        {t, p, v},
        {v, p, q},
    }};
    const auto& rgb = sectors[static_cast<std::size_t>(whole)];
    return PackColor(RoundHalfEven(rgb[0] * 255), RoundHalfEven(rgb[1] * 255),
                     RoundHalfEven(rgb[2] * 255));
}

std::string LongText(PackedColor color) {
    return std::to_string(PackColor(RedOf(color), GreenOf(color), BlueOf(color)));
}

std::optional<PackedColor> ParseLongText(std::string_view text) {
    text = TrimBlanks(text);
    if (text.empty() || text.size() > 8) return std::nullopt;
    int value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') return std::nullopt;
        value = value * 10 + (c - '0');
    }
    if (value > 0xFFFFFF) return std::nullopt;
    return value;
}

std::string HexText(PackedColor color) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text = "#";
    for (const int channel : {RedOf(color), GreenOf(color), BlueOf(color)}) {
        text += kDigits[channel >> 4];
        text += kDigits[channel & 15];
    }
    return text;
}

std::optional<PackedColor> ParseHexText(std::string_view text) {
    text = TrimBlanks(text);
    if (!text.empty() && text.front() == '#') text.remove_prefix(1);
    if (text.size() != 6 && text.size() != 3) return std::nullopt;
    std::array<int, 3> channels{};
    const std::size_t width = text.size() / 3;
    for (std::size_t i = 0; i < 3; ++i) {
        int channel = 0;
        for (std::size_t k = 0; k < width; ++k) {
            const int digit = HexDigit(text[i * width + k]);
            if (digit < 0) return std::nullopt;
            channel = channel * 16 + digit;
        }
        channels[i] = width == 1 ? channel * 17 : channel;
    }
    return PackColor(channels[0], channels[1], channels[2]);
}

}  // namespace iw
