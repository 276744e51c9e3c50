#pragma once
// The kinds of blank icon that "Settings\BlankIcon" names for a new set made at start-up.

namespace iw {

struct BlankIconFormat {
    int side;
    int bits;
    int png;
};

// The kinds that have a format of their own, 0 to kBlankIconKinds - 1.
inline constexpr int kBlankIconKinds = 4;

// 0: 32 x 32 at 32 bits (also any value without a kind of its own); 1: 16 x 16 at 32 bits;
// 2: 48 x 48 at 32 bits; 3: 256 x 256 at 32 bits stored compressed.
BlankIconFormat BlankIconKind(int kind);

}  // namespace iw
