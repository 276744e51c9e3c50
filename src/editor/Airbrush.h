#pragma once
// The airbrush: random dots in rings round the pointer, denser towards the centre.

#include <cstdint>
#include <random>
#include <vector>

#include "document/model/IconImage.h"
#include "editor/Geometry.h"

namespace iw {

// Where the airbrush draws its chances from. The program uses ClockRandomSource; tests pass
// a source of their own so that the dots are known.
class IRandomSource {
  public:
    virtual ~IRandomSource() = default;
    // Called once at the start of every spray.
    virtual void Reseed() = 0;
    // A number in [0, 1).
    virtual double NextUnit() = 0;
};

// Re-seeded from a high-resolution clock at every spray.
class ClockRandomSource final : public IRandomSource {
  public:
    void Reseed() override;
    double NextUnit() override;

  private:
    std::mt19937 engine_;
};

// The dots of one spray round (x, y) with radius `radius`: for every ring r from `radius`
// down to 0 and every integer angle 1..360 (radians, as the brush rings), one chance in 33
// (the integer part of u * 33 is 2) of a dot at (round(x + r cos a), round(y - r sin a)).
std::vector<Point> SprayPoints(int x, int y, int radius, IRandomSource& random);

// One spray through PlotPixel; dots outside the image are dropped.
void Spray(IconImage& image, int x, int y, int radius, PackedColor color, int alpha,
           IRandomSource& random);

}  // namespace iw
