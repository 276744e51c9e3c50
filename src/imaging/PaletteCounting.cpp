// Counting the colours of the working image, coarsening them until there are few enough,
// then merging them down to 254.

#include <algorithm>
#include <array>

#include "imaging/ColorMapping.h"
#include "imaging/Palette256.h"
#include "imaging/PaletteMerging.h"
#include "imaging/Rounding.h"

namespace iw {

namespace {

// The counting passes stop once a pass finds at most this many colours minus one.
constexpr int kCoarseEnough = 2034;

// Each channel c becomes round(c / step) * step - 1, at least 0. Even at step 1 every
// non-zero channel loses one: a 0 and a 1 count as the same colour.
std::array<int, 256> CoarseningTable(int step) {
    std::array<int, 256> table{};
    for (int c = 0; c < 256; ++c) {
        const int coarse = RoundHalfEven(static_cast<double>(c) / step) * step - 1;
        table[static_cast<std::size_t>(c)] = std::max(coarse, 0);
    }
    return table;
}

// The step that the next pass uses after a pass found `last` + 1 colours at `step`.
int NextStep(int step, int last) {
    if (last > 20000) return 16;
    if (last > 10000) return 8;
    // The chain: each test sees the result of the one before, so 1, 2, 4 and 8 all end
    // at 16.
    if (step == 1) step = 2;
    if (step == 2) step = 4;
    if (step == 4) step = 8;
    if (step == 8) step = 16;
    return step;
}

}  // namespace

void PaletteBuilder::CountPaletteColors() {
    distinctColors_ = -1;
    step_ = 1;
    for (;;) {
        CountingPass(step_);
        if (distinctColors_ == -1) distinctColors_ = paletteLast_;
        if (paletteLast_ <= kCoarseEnough) break;

        int next = NextStep(step_, paletteLast_);
        if (next == step_) {
            // The rules would repeat the very same pass forever here, since a pass with
            // the same step finds the same colours again. Decided: from step 8 (10001 to
            // 20000 colours) go on to step 16, the next link of the chain and what larger
            // counts get anyway; this also keeps the quadratic merging below on at most
            // 17^3 colours. At step 16 there is no coarser step: go on to merging.
            if (step_ != 8) break;
            next = 16;
        }
        step_ = next;
        Yield();
    }
    paletteLast_ = MergePaletteColors(palette_, paletteLast_, progress_);
}

void PaletteBuilder::CountingPass(int step) {
    const std::array<int, 256> coarse = CoarseningTable(step);
    CollectColors([&coarse](PackedColor c) {
        return coarse[static_cast<std::size_t>(RedOf(c))] +
               256 * coarse[static_cast<std::size_t>(GreenOf(c))] +
               65536 * coarse[static_cast<std::size_t>(BlueOf(c))];
    });
}

}  // namespace iw
