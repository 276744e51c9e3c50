#pragma once
// The zoom of the canvas: PixelSize, fit-in-window and the cap that keeps a large image
// from growing past 768 screen pixels.

#include "editor/EditorState.h"
#include "editor/Geometry.h"

namespace iw {

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
void LayoutCanvas(EditorState& state, ViewportSize viewport, int width, int height);

// Zoom in (+1, then the cap), zoom out (-1) and normal zoom (1): each turns FitInWindow off
// and runs the layout.
void ZoomIn(EditorState& state, ViewportSize viewport, int width, int height);
void ZoomOut(EditorState& state, ViewportSize viewport, int width, int height);
void NormalZoom(EditorState& state, ViewportSize viewport, int width, int height);
// The fit-in-window menu item: sets or clears FitInWindow and runs the layout.
void SetFitInWindow(EditorState& state, bool fit, ViewportSize viewport, int width, int height);
// The grid toggle: flips ShowGrid (the window mirrors it on the tool bar's "Grid" button).
void ToggleGrid(EditorState& state);

// The canvas's size on screen: width * PixelSize by height * PixelSize.
ViewportSize CanvasSize(const EditorState& state, int width, int height);

// The image cell under a canvas position. Positions left of or above the canvas give
// negative cells (rounded down, not towards zero), which the plotting routine drops.
Point CanvasToImage(int canvasX, int canvasY, int pixelSize);

}  // namespace iw
