#include "editor/FloodFill.h"

#include "editor/PixelPlot.h"

namespace iw {
namespace {

std::size_t Cell(int x, int y) {
    return static_cast<std::size_t>(y) * IconImage::kSide + static_cast<std::size_t>(x);
}

struct Seed {
    int x;
    int y;
};

}  // namespace

std::vector<bool> FloodRegion(const IconImage& image, int x, int y) {
    if (!InsideImage(image, x, y)) return {};
    const int width = ImageWidth(image);
    const int height = ImageHeight(image);
    const bool matchAlpha = image.info.bitCount == 32;
    const PackedColor color = image.Color(x, y);
    const int alpha = image.Alpha(x, y);
    auto matches = [&](int px, int py) {
        return image.Color(px, py) == color && (!matchAlpha || image.Alpha(px, py) == alpha);
    };

    std::vector<bool> region(static_cast<std::size_t>(IconImage::kPlaneCells), false);
    // Scanline fill: take a seed, extend it left and right to a whole run of matching cells,
    // mark the run and push one seed for every run of unmarked matching cells in the rows
    // above and below it.
    std::vector<Seed> seeds{{x, y}};
    while (!seeds.empty()) {
        const Seed seed = seeds.back();
        seeds.pop_back();
        if (region[Cell(seed.x, seed.y)]) continue;
        int left = seed.x;
        while (left > 0 && !region[Cell(left - 1, seed.y)] && matches(left - 1, seed.y))
            --left;
        int right = seed.x;
        while (right + 1 < width && !region[Cell(right + 1, seed.y)] && matches(right + 1, seed.y))
            ++right;
        for (int px = left; px <= right; ++px)
            region[Cell(px, seed.y)] = true;
        for (int row : {seed.y - 1, seed.y + 1}) {
            if (row < 0 || row >= height) continue;
            bool inRun = false;
            for (int px = left; px <= right; ++px) {
                const bool open = !region[Cell(px, row)] && matches(px, row);
                if (open && !inRun) seeds.push_back({px, row});
                inRun = open;
            }
        }
    }
    return region;
}

int FloodFill(IconImage& image, int x, int y, PackedColor color, int alpha) {
    const std::vector<bool> region = FloodRegion(image, x, y);
    if (region.empty()) return 0;
    int painted = 0;
    // Column by column, as every pixel loop of the editor runs.
    for (int px = 0; px < ImageWidth(image); ++px) {
        for (int py = 0; py < ImageHeight(image); ++py) {
            if (region[Cell(px, py)] && PlotPixel(image, px, py, color, alpha)) ++painted;
        }
    }
    return painted;
}

}  // namespace iw
