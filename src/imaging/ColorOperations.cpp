#include "imaging/ColorOperations.h"

#include "imaging/ColorMapping.h"
#include "imaging/OperationProgress.h"
#include "services/core/TextCatalog.h"

namespace iw {
namespace {

Rgba WithColor(Rgba pixel, PackedColor color) {
    pixel.r = static_cast<std::uint8_t>(RedOf(color));
    pixel.g = static_cast<std::uint8_t>(GreenOf(color));
    pixel.b = static_cast<std::uint8_t>(BlueOf(color));
    return pixel;
}

// Runs `change` on every pixel that is not inverting, column by column.
template <typename Change>
void ForEachColumn(RgbaBuffer& pixels, OperationProgress* progress, Change change) {
    for (int x = 0; x < pixels.Width(); ++x) {
        for (int y = 0; y < pixels.Height(); ++y) {
            if (!pixels.IsInverse(x, y)) pixels.At(x, y) = change(pixels.At(x, y));
        }
        if (progress) progress->ColumnDone(x);
    }
}

int TintChannel(int tint, int luma) {
    if (luma <= 128) return RoundHalfEven(tint * luma, 128);
    return tint + RoundHalfEven((255 - tint) * (luma - 128), 127);
}

}  // namespace

int Luma(Rgba p) {
    return RoundHalfEven(299 * p.r + 587 * p.g + 114 * p.b, 1000);
}

void Greyscale(RgbaBuffer& pixels, IProgressSink& progress) {
    OperationProgress status(progress, &texts::ConvertingGreyscale, pixels.Width());
    ForEachColumn(pixels, &status, [](Rgba p) {
        const int grey = Luma(p);
        return WithColor(p, PackColor(grey, grey, grey));
    });
}

void Invert(RgbaBuffer& pixels) {
    ForEachColumn(pixels, nullptr,
                  [](Rgba p) { return WithColor(p, PackColor(255 - p.r, 255 - p.g, 255 - p.b)); });
}

void MakeColorTransparent(RgbaBuffer& pixels, PackedColor key, int tolerance) {
    ForEachColumn(pixels, nullptr, [&](Rgba p) {
        if (ColorDistance(PackColor(p.r, p.g, p.b), key) <= tolerance) p.a = 0;
        return p;
    });
}

void Colorize(RgbaBuffer& pixels, PackedColor tint, IProgressSink& progress) {
    OperationProgress status(progress, &texts::Colorizing, pixels.Width());
    ForEachColumn(pixels, &status, [&](Rgba p) {
        const int luma = Luma(p);
        return WithColor(p,
                         PackColor(TintChannel(RedOf(tint), luma), TintChannel(GreenOf(tint), luma),
                                   TintChannel(BlueOf(tint), luma)));
    });
}

void TwoTone(RgbaBuffer& pixels, int threshold, PackedColor dark, PackedColor light) {
    ForEachColumn(pixels, nullptr,
                  [&](Rgba p) { return WithColor(p, Luma(p) < threshold ? dark : light); });
}

}  // namespace iw
