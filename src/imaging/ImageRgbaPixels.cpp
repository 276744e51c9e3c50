#include "imaging/ImageRgbaPixels.h"

#include <algorithm>

#include "imaging/ColorMapping.h"

namespace iw {
namespace {

int UsableSide(int side) {
    return std::clamp(side, 1, IconImage::kSide);
}

}  // namespace

int PlaneWidth(const IconImage& image) {
    return UsableSide(image.info.Width());
}

int PlaneHeight(const IconImage& image) {
    return UsableSide(image.info.Height());
}

RgbaBuffer ReadImageRgba(const IconImage& image, PixelRect region) {
    region = ClipRect(region, PlaneWidth(image), PlaneHeight(image));
    const bool hasAlpha = image.info.bitCount == 32;
    RgbaBuffer out(region.width, region.height);
    for (int y = 0; y < region.height; ++y) {
        const auto colors = image.Row(region.y + y, IconImage::ColorPlane);
        const auto alphas = image.Row(region.y + y, IconImage::AlphaPlane);
        for (int x = 0; x < region.width; ++x) {
            const auto at = static_cast<std::size_t>(region.x + x);
            const PackedColor c = colors[at];
            Rgba& p = out.At(x, y);
            p.a = hasAlpha ? static_cast<std::uint8_t>(std::clamp(alphas[at], 0, 255)) : 255;
            if (c == TransparentColor) {
                if (!hasAlpha) p.a = 0;
            } else if (c == InverseColor) {
                p.r = p.g = p.b = 255;
                if (!hasAlpha) p.a = 0;
                out.SetInverse(x, y, true);
            } else {
                p.r = static_cast<std::uint8_t>(RedOf(c));
                p.g = static_cast<std::uint8_t>(GreenOf(c));
                p.b = static_cast<std::uint8_t>(BlueOf(c));
            }
        }
    }
    return out;
}

RgbaBuffer ReadImageRgba(const IconImage& image) {
    return ReadImageRgba(image, {0, 0, IconImage::kSide, IconImage::kSide});
}

PackedColor ColorAtDepth(Rgba pixel, bool inverse, int bitCount) {
    if (inverse) return InverseColor;
    const PackedColor color = PackColor(pixel.r, pixel.g, pixel.b);
    if (bitCount == 32) return pixel.a == 0 && color == 0 ? TransparentColor : color;
    if (pixel.a < 128) return TransparentColor;
    if (bitCount == 1) return ConvertToMonoColor(color);
    if (bitCount == 4) return ConvertTo16Color(color);
    return color;
}

void WriteImageRgba(IconImage& image, int x, int y, const RgbaBuffer& pixels) {
    const PixelRect area =
        ClipRect({x, y, pixels.Width(), pixels.Height()}, PlaneWidth(image), PlaneHeight(image));
    const int bits = image.info.bitCount;
    for (int ty = area.y; ty < area.y + area.height; ++ty) {
        const auto colors = image.Row(ty, IconImage::ColorPlane);
        const auto alphas = image.Row(ty, IconImage::AlphaPlane);
        for (int tx = area.x; tx < area.x + area.width; ++tx) {
            const Rgba p = pixels.At(tx - x, ty - y);
            const auto at = static_cast<std::size_t>(tx);
            colors[at] = ColorAtDepth(p, pixels.IsInverse(tx - x, ty - y), bits);
            if (bits == 32) alphas[at] = p.a;
        }
    }
    if (!area.Empty()) image.DropOriginalPng();
}

void ReplaceImageRgba(IconImage& image, const RgbaBuffer& pixels) {
    image.ClearPlanes();
    image.info.widthMinus1 = static_cast<std::int16_t>(UsableSide(pixels.Width()) - 1);
    image.info.heightMinus1 = static_cast<std::int16_t>(UsableSide(pixels.Height()) - 1);
    image.DropOriginalPng();
    WriteImageRgba(image, 0, 0, pixels);
}

}  // namespace iw
