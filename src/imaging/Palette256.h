#pragma once
// The 256-colour palette builder that the icon writer runs for every 8-bit image.
//
// It chooses at most 254 colours for the image (entries 0..253), dithers the image onto
// them when it has more, and hands back the 256 palette entries and one palette index per
// pixel. Entry 254 is always black and entry 255 always white: they serve the transparent
// and the inverting pixels.
//
// What the writer calls for an 8-bit image:
//
//     Palette256Result built = CreatePalette256(set, imageIndex, progress);
//     // built.paletteBytes: 1024 bytes, 256 entries of blue, green, red, 0, in entry order
//     // built.IndexAt(x, y): the pixel's palette index (254 transparent, 255 inverting)
//
// Index layout: `indices` is row-major over the image's planes extent, row 0 = top row:
// indices[y * width + x], width = IconInfo field 0 + 1 (x extent), height = field 1 + 1
// (y extent). The writer picks rows from it bottom-up in whatever crosswise order its
// bitmap layout needs; padding and mask bits are the writer's.

#include <array>
#include <cstdint>
#include <vector>

#include "document/model/IconImage.h"
#include "document/model/IconSet.h"
#include "imaging/SeenColorTable.h"
#include "services/core/UserInterface.h"

namespace iw {

struct Palette256Result {
    static constexpr int kEntries = 256;
    static constexpr int kBlackEntry = 254;  // transparent pixels
    static constexpr int kWhiteEntry = 255;  // inverting pixels

    // Palette256 as the build left it: at least 256 entries, 254 black and 255 white.
    // Entries above `paletteLast` and below 254 hold whatever the build left there (zero,
    // or leftovers of merging) and are written as they stand.
    std::vector<PackedColor> palette;
    int paletteLast = -1;     // PaletteLast after the build (before entries 254/255 are set)
    int distinctColors = -1;  // DistinctColors: colours minus one of the first counting pass
    bool dithered = false;    // true when the image had too many colours and was dithered

    // Entries 0..255 as blue, green, red, 0.
    std::array<std::uint8_t, kEntries * 4> paletteBytes{};

    int width = 0;                      // x extent
    int height = 0;                     // y extent
    std::vector<std::uint8_t> indices;  // indices[y * width + x], row 0 = top

    std::uint8_t IndexAt(int x, int y) const {
        return indices[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                       static_cast<std::size_t>(x)];
    }
};

// Builds the palette and indices for image `imageIndex` of `set`. Puts "Creating color
// palette for 256 color icon " and the index (counted from 0) into the status bar and lets
// the window repaint between stages. Neither the set nor the image is changed.
Palette256Result CreatePalette256(const IconSet& set, int imageIndex, IProgressSink& progress);
Palette256Result CreatePalette256(const IconImage& image, int imageIndex, IProgressSink& progress);

// The stages of one build, in the order CreatePalette256 runs them; public so that each
// stage can be checked on its own. A builder serves one build of one image: it copies the
// image's colour plane into its working image and allocates the seen-colour table once.
class PaletteBuilder {
  public:
    explicit PaletteBuilder(const IconImage& image, IProgressSink* progress = nullptr);

    // Counting with coarsening, then merging down to 254 colours when there are more.
    // Records DistinctColors from the first pass.
    void CountPaletteColors();
    // Rebuilds the palette from the unchanged colours (for images of at most 254 colours).
    void ExactPalette();
    // Error diffusion of the working image onto the palette left by the counting.
    void DitherToPalette();
    // Steps after the palette is chosen: entries 254/255, the palette bytes, the indices.
    Palette256Result Finish();

    int DistinctColors() const { return distinctColors_; }
    int PaletteLast() const { return paletteLast_; }
    const std::vector<PackedColor>& Palette() const { return palette_; }
    // The step of the last counting pass (1, 2, 4, 8 or 16).
    int QuantizationStep() const { return step_; }
    // The working image, changed by dithering only.
    PackedColor WorkingColor(int x, int y) const { return work_[Cell(x, y)]; }
    int Width() const { return width_; }
    int Height() const { return height_; }

  private:
    std::size_t Cell(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x);
    }
    void CountingPass(int step);
    // One column-by-column pass that enters each pixel's colour, as `reduce` makes it, into
    // the palette the first time it is seen. Marker pixels count as black and white.
    template <typename Reduce>
    void CollectColors(Reduce reduce);
    void Yield();

    int width_;
    int height_;
    std::vector<PackedColor> work_;  // colour plane, width x height, row-major
    std::vector<PackedColor> palette_;
    int paletteLast_ = -1;
    int distinctColors_ = -1;
    int step_ = 1;
    bool dithered_ = false;
    SeenColorTable seen_;
    IProgressSink* progress_;
};

}  // namespace iw

namespace iw {

template <typename Reduce>
void PaletteBuilder::CollectColors(Reduce reduce) {
    seen_.Clear();
    paletteLast_ = -1;
    palette_.assign(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), 0);
    for (int x = 0; x < width_; ++x) {
        for (int y = 0; y < height_; ++y) {
            PackedColor c = work_[Cell(x, y)];
            if (c == TransparentColor) c = 0x000000;
            if (c == InverseColor) c = 0xFFFFFF;
            const PackedColor entered = reduce(c);
            if (seen_.Insert(entered)) palette_[static_cast<std::size_t>(++paletteLast_)] = entered;
        }
    }
}

}  // namespace iw
