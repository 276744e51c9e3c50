#pragma once
// The sixteen standard colours (the eight mixes of 0 and 128, the eight of 0 and 255 with
// black in both, and silver), in the order of the classic Windows 16-colour palette, which
// is also the order the 4-bit writer stores them in. One definition, used by the 16-colour
// mapping and by the reader's check for non-standard 16-colour images.

#include <array>

#include "document/model/Colors.h"

namespace iw {

inline constexpr std::array<PackedColor, 16> kStandard16Colors = {
    PackColor(0, 0, 0),       PackColor(128, 0, 0),     PackColor(0, 128, 0),
    PackColor(128, 128, 0),   PackColor(0, 0, 128),     PackColor(128, 0, 128),
    PackColor(0, 128, 128),   PackColor(192, 192, 192), PackColor(128, 128, 128),
    PackColor(255, 0, 0),     PackColor(0, 255, 0),     PackColor(255, 255, 0),
    PackColor(0, 0, 255),     PackColor(255, 0, 255),   PackColor(0, 255, 255),
    PackColor(255, 255, 255),
};

// The 1-bit palette: black, then white.
inline constexpr std::array<PackedColor, 2> kMonoColors = {PackColor(0, 0, 0),
                                                           PackColor(255, 255, 255)};

// Index of `color` among the sixteen, or -1.
constexpr int Standard16Index(PackedColor color) {
    for (int i = 0; i < 16; ++i) {
        if (kStandard16Colors[static_cast<std::size_t>(i)] == color) return i;
    }
    return -1;
}

constexpr bool IsStandard16Color(PackedColor color) {
    return Standard16Index(color) >= 0;
}

}  // namespace iw
