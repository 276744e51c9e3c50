#include "imaging/FolderPicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>

#include "imaging/Resampler.h"
#include "imaging/Rounding.h"
#include "services/core/ParseInteger.h"

namespace iw {
namespace {

// The folder is drawn in a 48 x 48 design space and sampled 4 x 4 times a pixel.
constexpr double kDesignSide = 48.0;
constexpr int kSamples = 4;
// Where the overlay's middle sits on the folder's front, in design units.
constexpr double kFrontCentreX = 24.0;
constexpr double kFrontCentreY = 29.0;

struct Box {
    double left, top, right, bottom, radius;
};

// Signed distance from (x, y) to the rounded box: negative inside.
double BoxDistance(const Box& box, double x, double y) {
    const double cx = (box.left + box.right) / 2;
    const double cy = (box.top + box.bottom) / 2;
    const double qx = std::abs(x - cx) - (box.right - box.left) / 2 + box.radius;
    const double qy = std::abs(y - cy) - (box.bottom - box.top) / 2 + box.radius;
    const double outside = std::hypot(std::max(qx, 0.0), std::max(qy, 0.0));
    return outside + std::min(std::max(qx, qy), 0.0) - box.radius;
}

struct Colour {
    double r, g, b;
};

constexpr Box kBack{3, 9, 45, 41, 2.5};
constexpr Box kTab{3, 6, 21, 13, 2.5};
constexpr Box kPaper{7, 12, 41, 30, 1};
constexpr Box kFront{3, 16, 45, 42, 2.5};

constexpr Colour kBackFill{222, 166, 52};
constexpr Colour kBackEdge{150, 100, 20};
constexpr Colour kPaperFill{250, 250, 244};
constexpr Colour kPaperEdge{176, 176, 166};
constexpr Colour kFrontTop{255, 216, 106};
constexpr Colour kFrontBottom{240, 178, 58};
constexpr Colour kFrontEdge{160, 110, 25};

// The folder's colour at a design point, or nullopt outside it. `edge`: the outline's width.
std::optional<Colour> FolderColourAt(double x, double y, double edge) {
    const double front = BoxDistance(kFront, x, y);
    if (front <= 0) {
        if (front > -edge) return kFrontEdge;
        const double t = std::clamp((y - kFront.top) / (kFront.bottom - kFront.top), 0.0, 1.0);
        return Colour{kFrontTop.r + (kFrontBottom.r - kFrontTop.r) * t,
                      kFrontTop.g + (kFrontBottom.g - kFrontTop.g) * t,
                      kFrontTop.b + (kFrontBottom.b - kFrontTop.b) * t};
    }
    const double paper = BoxDistance(kPaper, x, y);
    if (paper <= 0) return paper > -edge ? kPaperEdge : kPaperFill;
    const double back = std::min(BoxDistance(kBack, x, y), BoxDistance(kTab, x, y));
    if (back <= 0) return back > -edge ? kBackEdge : kBackFill;
    return std::nullopt;
}

std::uint8_t Byte(double value) {
    return static_cast<std::uint8_t>(std::clamp(RoundHalfEven(value), 0, 255));
}

// Premultiplied colour and alpha, 0..255 each.
struct Premultiplied {
    double r = 0, g = 0, b = 0, a = 0;
};

Premultiplied Sample(const RgbaBuffer& picture, int x, int y) {
    if (x < 0 || y < 0 || x >= picture.Width() || y >= picture.Height()) return {};
    const Rgba p = picture.At(x, y);
    const double alpha = p.a / 255.0;
    return {p.r * alpha, p.g * alpha, p.b * alpha, static_cast<double>(p.a)};
}

// Bilinear sampling at pixel coordinates (pixel centres on whole numbers).
Premultiplied SampleBilinear(const RgbaBuffer& picture, double u, double v) {
    const double fu = std::floor(u);
    const double fv = std::floor(v);
    const int x = static_cast<int>(fu);
    const int y = static_cast<int>(fv);
    const double tx = u - fu;
    const double ty = v - fv;
    const std::array<std::pair<Premultiplied, double>, 4> corners = {{
        {Sample(picture, x, y), (1 - tx) * (1 - ty)},
        {Sample(picture, x + 1, y), tx * (1 - ty)},
        {Sample(picture, x, y + 1), (1 - tx) * ty},
        {Sample(picture, x + 1, y + 1), tx * ty},
    }};
    Premultiplied sum;
    for (const auto& [p, weight] : corners) {
        if (weight == 0) continue;
        sum.r += p.r * weight;
        sum.g += p.g * weight;
        sum.b += p.b * weight;
        sum.a += p.a * weight;
    }
    return sum;
}

// The picture fitted into a box x box square, mask colour left out.
RgbaBuffer FittedOverlay(const RgbaBuffer& picture, const FolderOverlay& overlay, int box) {
    RgbaBuffer source = picture;
    if (overlay.maskColor) {
        const Rgba mask = *overlay.maskColor;
        for (Rgba& p : source.Pixels()) {
            if (p.r == mask.r && p.g == mask.g && p.b == mask.b) p = Rgba{};
        }
    }
    return Resampler(source).FitInside(box, box, true);
}

}  // namespace

std::optional<int> OverlayFieldValue(std::string_view text, const OverlayField& field) {
    const std::optional<int> value = ParseTypedInteger<int>(text);
    if (!value || *value < field.min || *value > field.max) return std::nullopt;
    return value;
}

RgbaBuffer DrawFolderPicture(int side) {
    side = std::max(side, 1);
    RgbaBuffer folder(side, side);
    const double unit = kDesignSide / side;  // design units a pixel
    const double edge = std::max(unit, 1.0);
    for (int x = 0; x < side; ++x) {
        for (int y = 0; y < side; ++y) {
            Colour sum{0, 0, 0};
            int covered = 0;
            for (int i = 0; i < kSamples; ++i) {
                for (int j = 0; j < kSamples; ++j) {
                    const double dx = (x + (i + 0.5) / kSamples) * unit;
                    const double dy = (y + (j + 0.5) / kSamples) * unit;
                    if (const std::optional<Colour> c = FolderColourAt(dx, dy, edge)) {
                        sum.r += c->r;
                        sum.g += c->g;
                        sum.b += c->b;
                        ++covered;
                    }
                }
            }
            if (covered == 0) continue;
            folder.At(x, y) = {Byte(sum.r / covered), Byte(sum.g / covered), Byte(sum.b / covered),
                               Byte(255.0 * covered / (kSamples * kSamples))};
        }
    }
    return folder;
}

RgbaBuffer ComposeFolderIcon(const RgbaBuffer& picture, const FolderOverlay& overlay, int side) {
    side = std::max(side, 1);
    RgbaBuffer icon = DrawFolderPicture(side);
    if (picture.Empty() || overlay.density <= 0) return icon;

    const double scale = side / kDesignSide;
    const int box = std::max(1, RoundHalfEven(side * 5 / 8.0));
    const RgbaBuffer fitted = FittedOverlay(picture, overlay, box);
    // The overlay's top left corner when unturned, on whole pixels so that an unturned
    // picture lands pixel for pixel.
    const int left = RoundHalfEven((kFrontCentreX + overlay.offsetX) * scale - box / 2.0);
    const int top = RoundHalfEven((kFrontCentreY + overlay.offsetY) * scale - box / 2.0);
    const double centreX = left + box / 2.0;
    const double centreY = top + box / 2.0;
    const double radians = (overlay.angle % 360) * std::numbers::pi / 180.0;
    const double cosine =
        overlay.angle % 90 == 0 ? std::round(std::cos(radians)) : std::cos(radians);
    const double sine = overlay.angle % 90 == 0 ? std::round(std::sin(radians)) : std::sin(radians);
    const double density = std::min(overlay.density, 256) / 256.0;

    for (int x = 0; x < side; ++x) {
        for (int y = 0; y < side; ++y) {
            // Turned back by the angle (clockwise on screen, y downwards) into the picture.
            const double tx = x + 0.5 - centreX;
            const double ty = y + 0.5 - centreY;
            const double sx = cosine * tx + sine * ty;
            const double sy = -sine * tx + cosine * ty;
            const Premultiplied over =
                SampleBilinear(fitted, sx + box / 2.0 - 0.5, sy + box / 2.0 - 0.5);
            const double overAlpha = over.a / 255.0 * density;
            if (overAlpha <= 0) continue;
            Rgba& under = icon.At(x, y);
            const double underAlpha = under.a / 255.0;
            const double outAlpha = overAlpha + underAlpha * (1 - overAlpha);
            // `over` is premultiplied by its own alpha; density scales it further.
            const auto channel = [&](double overPremultiplied, std::uint8_t underValue) {
                return (overPremultiplied * density + underValue * underAlpha * (1 - overAlpha)) /
                       outAlpha;
            };
            under = {Byte(channel(over.r, under.r)), Byte(channel(over.g, under.g)),
                     Byte(channel(over.b, under.b)), Byte(outAlpha * 255.0)};
        }
    }
    return icon;
}

}  // namespace iw
