#include "document/io/IndexedPixels.h"

#include <algorithm>

#include "imaging/ColorMapping.h"
#include "imaging/Palette256.h"
#include "imaging/StandardColors.h"

namespace iw {
namespace {

template <typename IndexOf>
void IndexEveryPixel(const IconImage& image, IndexedPixels& out, IndexOf indexOf) {
    out.indexes.assign(static_cast<std::size_t>(out.width) * static_cast<std::size_t>(out.height),
                       0);
    for (int y = 0; y < out.height; ++y) {
        auto colors = image.Row(y, IconImage::ColorPlane);
        for (int x = 0; x < out.width; ++x) {
            out.indexes[static_cast<std::size_t>(y) * static_cast<std::size_t>(out.width) +
                        static_cast<std::size_t>(x)] =
                static_cast<std::uint8_t>(indexOf(colors[static_cast<std::size_t>(x)]));
        }
    }
}

}  // namespace

IndexedPixels IndexPixels(const IconImage& image, int width, int height, int imageIndex,
                          IProgressSink& progress) {
    IndexedPixels out;
    out.width = width;
    out.height = height;
    switch (image.info.bitCount) {
        case 1:
            out.palette.assign(kMonoColors.begin(), kMonoColors.end());
            IndexEveryPixel(image, out, [](PackedColor c) {
                if (c == TransparentColor) return 0;
                if (c == InverseColor) return 1;
                return ConvertToMonoColor(c) == kMonoColors[1] ? 1 : 0;
            });
            break;
        case 4:
            out.palette.assign(kStandard16Colors.begin(), kStandard16Colors.end());
            IndexEveryPixel(image, out, [](PackedColor c) {
                if (c == TransparentColor) return Standard16Index(PackColor(0, 0, 0));
                if (c == InverseColor) return Standard16Index(PackColor(255, 255, 255));
                return Standard16Index(ConvertTo16Color(c));
            });
            break;
        default: {
            Palette256Result built = CreatePalette256(image, imageIndex, progress);
            out.palette.assign(built.palette.begin(), built.palette.begin() + 256);
            // The palette covers the image's own extent; a cell outside it (only for a
            // non-square image written crosswise) is black.
            out.indexes.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                               Palette256Result::kBlackEntry);
            for (int y = 0; y < std::min(height, built.height); ++y) {
                for (int x = 0; x < std::min(width, built.width); ++x) {
                    out.indexes[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                                static_cast<std::size_t>(x)] = built.IndexAt(x, y);
                }
            }
            break;
        }
    }
    return out;
}

}  // namespace iw
