#pragma once
// Resampling pictures to other sizes with a real filter, in premultiplied alpha so that
// the colour of transparent pixels never bleeds into the edges of what shows.
//
// Each axis is filtered on its own: an axis that shrinks uses the Mitchell-Netravali cubic
// (B = C = 1/3), which keeps detail without visible ringing, with its support widened by
// the scale factor so that every source pixel counts however far the picture shrinks (one
// pass, no halving steps). An axis that grows uses the Catmull-Rom cubic, which passes
// through the source pixels and so keeps enlarged icon art crisper than Mitchell would.
// Edges repeat the border pixels. Inverting pixels carry no colour: they count as
// transparent in the filter, and a target pixel is inverting when the source pixel under
// its centre is.

#include <cstdint>
#include <vector>

#include "imaging/RgbaBuffer.h"

namespace iw {

struct PixelSize {
    int width = 0;
    int height = 0;
    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

// A source prepared once (premultiplied, in floating point) for resampling to many sizes,
// as a conversion to a dozen icon sizes does.
class Resampler {
  public:
    explicit Resampler(const RgbaBuffer& source);

    int SourceWidth() const { return width_; }
    int SourceHeight() const { return height_; }

    // The source at width x height (each at least 1); an empty buffer when the source is
    // empty or the sides are not positive.
    RgbaBuffer Resize(int width, int height) const;

    // The source scaled to fit inside a width x height canvas with its aspect kept, centred
    // on transparent pixels. Without `enlarge` a source that already fits is only centred.
    RgbaBuffer FitInside(int width, int height, bool enlarge) const;

  private:
    int width_ = 0;
    int height_ = 0;
    std::vector<float> premultiplied_;   // r, g, b, a in 0..1, colours times alpha
    std::vector<std::uint8_t> inverse_;  // one flag a pixel; empty without inverting pixels
};

// The largest size with the aspect of width x height that fits inside maxWidth x
// maxHeight (each side at least 1). Without `enlarge` a size that fits stays as it is.
PixelSize FitSize(int width, int height, int maxWidth, int maxHeight, bool enlarge);

// One-off resampling to width x height.
RgbaBuffer Resample(const RgbaBuffer& source, int width, int height);

}  // namespace iw
