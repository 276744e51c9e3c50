#include "editor/Zoom.h"

#include <algorithm>

namespace iw {
namespace {

constexpr int kCapPixels = 768;
constexpr int kFitMargin = 32;

int FloorDiv(int a, int b) {
    const int q = a / b;
    return (a % b != 0 && ((a < 0) != (b < 0))) ? q - 1 : q;
}

int SafeSide(int side) {
    return side < 1 ? 1 : side;
}

}  // namespace

int CapPixelSize(int pixelSize, int width, int height) {
    width = SafeSide(width);
    height = SafeSide(height);
    if ((width - 1) * pixelSize > kCapPixels) pixelSize = kCapPixels / width;
    if ((height - 1) * pixelSize >= kCapPixels + 1) pixelSize = kCapPixels / height;
    return pixelSize;
}

void LayoutCanvas(ViewState& state, ViewportSize viewport, int width, int height) {
    width = SafeSide(width);
    height = SafeSide(height);
    int size = state.PixelSize;
    if (state.FitInWindow) {
        // Integer division truncates, as everywhere; a negative quotient ends at the clamp.
        size = std::min((viewport.width - kFitMargin) / width,
                        (viewport.height - kFitMargin) / height);
    }
    size = std::clamp(size, ViewState::kMinPixelSize, ViewState::kMaxPixelSize);
    state.PixelSize = CapPixelSize(size, width, height);
}

ViewportSize CanvasSize(const ViewState& state, int width, int height) {
    return {width * state.PixelSize, height * state.PixelSize};
}

Point CanvasToImage(int canvasX, int canvasY, int pixelSize) {
    pixelSize = std::max(pixelSize, 1);
    return {FloorDiv(canvasX, pixelSize), FloorDiv(canvasY, pixelSize)};
}

}  // namespace iw
