#pragma once
// Packed colours and the marker values that stand in the colour plane.

#include <cstdint>

namespace iw {

// A packed colour: red in the low byte, then green, then blue (0x00BBGGRR).
using PackedColor = std::int32_t;

// No packed RGB colour can equal these: they mark a pixel whose mask bit is set.
inline constexpr PackedColor TransparentColor = -8;  // mask set over black: shows the background
inline constexpr PackedColor InverseColor = -16;     // mask set over white: inverts the screen
// A third marker, kept free for the editor's selection work.
inline constexpr PackedColor SelectionMarkerColor = -24;

inline constexpr bool IsMarker(PackedColor c) {
    return c == TransparentColor || c == InverseColor;
}

// Channels by shifting, so the top byte of a packed value never leaks in (the same as
// dividing by 256 and 65536 for every real colour).
inline constexpr int RedOf(PackedColor c) {
    return c & 0xFF;
}
inline constexpr int GreenOf(PackedColor c) {
    return (c >> 8) & 0xFF;
}
inline constexpr int BlueOf(PackedColor c) {
    return (c >> 16) & 0xFF;
}

// Recomposes a colour; a channel above 255 is taken as 255 (and one below 0 as 0).
inline constexpr PackedColor PackColor(int red, int green, int blue) {
    auto clamp = [](int v) { return v < 0 ? 0 : (v > 255 ? 255 : v); };
    return clamp(red) + 256 * clamp(green) + 65536 * clamp(blue);
}

}  // namespace iw
