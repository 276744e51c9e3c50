#pragma once
// The floating selection: a picture held above the image being edited, at the image's own
// depth, until it is dropped into it. The Select tool lifts one out of the image; paste,
// Select All and placed text make one as well.

#include <memory>

#include "editor/tools/Tool.h"

namespace iw {

class FloatingPicture final : public IFloatingSelection {
  public:
    // `pixels` holds the picture in its top-left cells, its fields give its sides and depth.
    FloatingPicture(IconImage pixels, Point origin) : pixels_(std::move(pixels)), origin_(origin) {}

    Point Origin() const override { return origin_; }
    const IconImage& Pixels() const override { return pixels_; }
    // For the adjustments, which work on the floating pixels while their window is open.
    IconImage& EditPixels() { return pixels_; }
    void MoveTo(Point origin) override { origin_ = origin; }
    // Opaque: every cell over the image takes the picture's colour (and alpha in a 32-bit
    // image), transparent ones included. Transparent: the picture's transparent cells
    // leave the image's own; in a 32-bit image a partly transparent cell is laid over the
    // image's (the "over" rule on straight alpha), so antialiased text keeps its soft edges.
    void Drop(IconImage& image, SelectionMode mode) override;

  private:
    IconImage pixels_;
    Point origin_;
};

// The cells of `rect` (inside `image`) lifted out: they float at the same place, and the
// image keeps a transparent hole (TransparentColor, alpha 0) where they were.
std::unique_ptr<FloatingPicture> LiftOut(IconImage& image, const CellRect& rect);

// Where a floating selection of `size` may stand over `image`: `origin` moved just enough
// that at least one cell still overlaps the image, so it can always be grabbed again.
Point KeepOverlapping(Point origin, const CellRect& size, const IconImage& image);

}  // namespace iw
