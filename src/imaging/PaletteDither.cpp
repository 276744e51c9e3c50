#include "imaging/PaletteDither.h"

#include "imaging/ColorMapping.h"
#include "imaging/NearestPaletteEntry.h"
#include "imaging/Rounding.h"

namespace iw {

namespace {

struct Channels {
    int red;
    int green;
    int blue;
};

// The error shares, in sixteenths. Each share is an exact binary fraction, so the
// single-precision factor times the error is exact and rounding channel + error x factor
// in floating point gives the same integer as rounding (16 x channel + error x share) / 16,
// which is what AddShare does.
constexpr int kShareRight = 7;
constexpr int kShareLowerLeft = 3;
constexpr int kShareBelow = 5;
constexpr int kShareLowerLeftAgain = 1;

constexpr int kColumnsPerYield = 32;

// round(channel + error x share / 16), halves to even, held to 0..255.
int AddShare(int channel, int error, int share) {
    const int value = RoundHalfEven(16 * channel + error * share, 16);
    return value < 0 ? 0 : (value > 255 ? 255 : value);
}

}  // namespace

// Column by column (x outer, y inner), each pixel takes the nearest palette colour to the
// buffer's colour there and passes the difference on: 7/16 to the right, 3/16 to the
// lower left, 5/16 below and 1/16 to the lower left once more. The second lower-left
// share is the established behaviour and is kept; the lower-right neighbour gets nothing.
// As the scan runs column by column the lower-left column is already done, so both
// lower-left shares reach the buffer only, never the output.
void DitherToPalette(std::span<PackedColor> image, int width, int height,
                     const std::vector<PackedColor>& palette, int paletteLast,
                     IProgressSink* progress) {
    const NearestPaletteEntry nearest(palette, paletteLast);
    auto cell = [width](int x, int y) {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
               static_cast<std::size_t>(x);
    };

    std::vector<Channels> buffer(image.size());
    for (std::size_t at = 0; at < image.size(); ++at) {
        const PackedColor c = image[at];
        buffer[at] = {RedOf(c), GreenOf(c), BlueOf(c)};
    }

    auto spread = [&](int x, int y, const Channels& error, int share) {
        if (x < 0 || x >= width || y < 0 || y >= height) return;
        Channels& target = buffer[cell(x, y)];
        target.red = AddShare(target.red, error.red, share);
        target.green = AddShare(target.green, error.green, share);
        target.blue = AddShare(target.blue, error.blue, share);
    };

    for (int x = 0; x < width; ++x) {
        for (int y = 0; y < height; ++y) {
            const std::size_t at = cell(x, y);
            // The buffer starts as a copy of the image and only ever receives colours, so
            // its pixel can be a marker only where the image's is: one test covers both.
            if (IsMarker(image[at])) continue;
            const Channels wanted = buffer[at];
            const int entry = nearest.Find(wanted.red, wanted.green, wanted.blue);
            if (entry < 0) continue;
            const PackedColor chosen = palette[static_cast<std::size_t>(entry)];
            image[at] = chosen;
            const Channels error = {wanted.red - RedOf(chosen), wanted.green - GreenOf(chosen),
                                    wanted.blue - BlueOf(chosen)};
            spread(x + 1, y, error, kShareRight);
            spread(x - 1, y + 1, error, kShareLowerLeft);
            spread(x, y + 1, error, kShareBelow);
            spread(x - 1, y + 1, error, kShareLowerLeftAgain);
        }
        if (progress != nullptr && x % kColumnsPerYield == kColumnsPerYield - 1) {
            progress->Yield();
        }
    }
}

}  // namespace iw
