#pragma once
// The reductions that tie a colour to a lower depth: the sixteen standard colours and
// black-or-white, plus the city-block distance that the palette builder measures with.
//
// The marker values (TransparentColor, InverseColor) are not colours: both mappings hand
// them back unchanged, so a caller may pass a whole plane through them without losing
// its transparent and inverting pixels.

#include "document/model/Colors.h"

namespace iw {

// Channel extraction by shifting, so the top byte of a packed value never leaks in.
constexpr int ChannelRed(PackedColor c) {
    return c & 0xFF;
}
constexpr int ChannelGreen(PackedColor c) {
    return (c >> 8) & 0xFF;
}
constexpr int ChannelBlue(PackedColor c) {
    return (c >> 16) & 0xFF;
}

// A channel's level among the sixteen colours: 255 from 192 up, 128 from 81 to 191,
// 0 up to 80.
constexpr int Quantize16Channel(int channel) {
    if (channel >= 192) return 255;
    if (channel >= 81) return 128;
    return 0;
}
constexpr int Quantize16Red(PackedColor c) {
    return Quantize16Channel(ChannelRed(c));
}
constexpr int Quantize16Green(PackedColor c) {
    return Quantize16Channel(ChannelGreen(c));
}
constexpr int Quantize16Blue(PackedColor c) {
    return Quantize16Channel(ChannelBlue(c));
}

// One of the sixteen standard colours (see StandardColors.h).
PackedColor ConvertTo16Color(PackedColor color);

// Black (0x000000) or white (0xFFFFFF): white exactly when red + green + blue >= 383.
PackedColor ConvertToMonoColor(PackedColor color);

// |dR| + |dG| + |dB|, 0..765. No weighting of the channels.
constexpr int ColorDistance(PackedColor a, PackedColor b) {
    auto diff = [](int x, int y) { return x > y ? x - y : y - x; };
    return diff(ChannelRed(a), ChannelRed(b)) + diff(ChannelGreen(a), ChannelGreen(b)) +
           diff(ChannelBlue(a), ChannelBlue(b));
}

}  // namespace iw
