#include "imaging/PaletteMerging.h"

#include <algorithm>

#include "imaging/ColorMapping.h"

namespace iw {

namespace {

// Merging stops when PaletteLast reaches this: 254 colours, entries 0..253.
constexpr int kMergedLast = 253;
constexpr long kMostSweeps = 16'777'216;

// The channels' integer halves of the two entries' sums.
PackedColor MergedColor(PackedColor a, PackedColor b) {
    return PackColor((RedOf(a) + RedOf(b)) / 2, (GreenOf(a) + GreenOf(b)) / 2,
                     (BlueOf(a) + BlueOf(b)) / 2);
}

// True when any of the kBlock entries from `block` lies closer than `threshold` to
// `color`. A fixed-size loop without early exit, which the compiler turns into vector code;
// the merging uses it to step over blocks in which nothing can merge.
constexpr int kBlock = 16;
bool AnyCloser(const PackedColor* block, PackedColor color, int threshold) {
    const int red = RedOf(color);
    const int green = GreenOf(color);
    const int blue = BlueOf(color);
    int closer = 0;
    for (int k = 0; k < kBlock; ++k) {
        const int dr = RedOf(block[k]) - red;
        const int dg = GreenOf(block[k]) - green;
        const int db = BlueOf(block[k]) - blue;
        const int distance = (dr < 0 ? -dr : dr) + (dg < 0 ? -dg : dg) + (db < 0 ? -db : db);
        closer |= distance < threshold ? 1 : 0;
    }
    return closer != 0;
}

}  // namespace

// Sweeps with a growing threshold t = 3, 6, 9, ...: entry i absorbs every entry j closer
// than t (the two are averaged into entry i, entry j is taken out by moving every later
// entry down one place), until 254 colours are left. Both loops take their upper limit
// from the count when they start, so after removals they run on into the slots past the
// end, which hold stale copies left by the moves; this is the established behaviour and
// is kept. The inner loop deliberately starts at j = 0: entry i first meets itself and is
// thereby replaced by the entry after it, which thins the list in index order before any
// similar pair is found.
int MergePaletteColors(std::vector<PackedColor>& palette, int paletteLast,
                       IProgressSink* progress) {
    if (paletteLast <= kMergedLast) return paletteLast;
    PackedColor* entries = palette.data();
    int last = paletteLast;
    int threshold = 3;
    for (long sweep = 0; sweep < kMostSweeps; ++sweep, threshold += 3) {
        const int outerLast = last - 1;
        for (int i = 0; i <= outerLast; ++i) {
            const int innerLast = last;
            for (int j = 0; j <= innerLast; ++j) {
                // Step over whole blocks of entries too far from entry i to merge.
                while (j + kBlock - 1 <= innerLast &&
                       !AnyCloser(entries + j, entries[i], threshold)) {
                    j += kBlock;
                }
                if (j > innerLast) break;
                if (ColorDistance(entries[i], entries[j]) >= threshold) continue;
                entries[i] = MergedColor(entries[i], entries[j]);
                // The last slot keeps its old value.
                if (j < last) std::copy(entries + j + 1, entries + last + 1, entries + j);
                --last;
                if (last == kMergedLast) return last;
            }
        }
        if (progress != nullptr) progress->Yield();
    }
    return last;
}

}  // namespace iw
