#pragma once
// The zoom of the canvas: PixelSize, fit-in-window and the cap that keeps a large image
// from growing past 768 screen pixels.

#include "editor/Geometry.h"

namespace iw {

// How the canvas shows the image; read at start-up and written at exit.
struct ViewState {
    static constexpr int kMinPixelSize = 1;
    static constexpr int kMaxPixelSize = 48;

    int PixelSize = 32;  // screen pixels per image pixel, 1..48 after every layout
    bool FitInWindow = true;
    bool ShowGrid = false;
};

// The area the canvas lies in, in screen pixels.
struct ViewportSize {
    int width = 0;
    int height = 0;
};

// If (width - 1) * pixelSize exceeds 768, pixelSize becomes 768 / width; then, with the new
// value, if (height - 1) * pixelSize is 769 or more, it becomes 768 / height. The test
// takes the side less one on purpose, so an image may stand one cell wider than 768 screen
// pixels before the cap acts. `width` and `height` are the image's real sides.
int CapPixelSize(int pixelSize, int width, int height);

// The main window's layout: with FitInWindow set, PixelSize becomes the smaller of
// (viewport width - 32) / width and (viewport height - 32) / height; then it is clamped to
// 1..48 and capped. Runs after every resize and every zoom.
void LayoutCanvas(ViewState& state, ViewportSize viewport, int width, int height);

// The canvas's size on screen: width * PixelSize by height * PixelSize.
ViewportSize CanvasSize(const ViewState& state, int width, int height);

// The image cell under a canvas position. Positions left of or above the canvas give
// negative cells (rounded down, not towards zero), which the plotting routine drops.
Point CanvasToImage(int canvasX, int canvasY, int pixelSize);

}  // namespace iw
