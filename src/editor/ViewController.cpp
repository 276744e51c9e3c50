#include "editor/ViewController.h"

namespace iw {

void ViewController::Restore(const ViewState& state) {
    state_ = state;
    Layout();
}

void ViewController::SetViewport(ViewportSize viewport) {
    viewport_ = viewport;
    Layout();
}

void ViewController::ShowImage(int width, int height) {
    image_ = ViewportSize{width, height};
    Layout();
}

void ViewController::Layout() {
    if (image_) LayoutCanvas(state_, viewport_, image_->width, image_->height);
    Changed();
}

void ViewController::Zoom(int pixelSize) {
    if (!image_) return;
    state_.PixelSize = pixelSize;
    state_.FitInWindow = false;
    Layout();
}

void ViewController::ZoomIn() {
    if (image_) Zoom(CapPixelSize(state_.PixelSize + 1, image_->width, image_->height));
}

void ViewController::ZoomOut() {
    Zoom(state_.PixelSize - 1);
}

void ViewController::NormalZoom() {
    Zoom(1);
}

void ViewController::SetFitInWindow(bool fit) {
    state_.FitInWindow = fit;
    Layout();
}

void ViewController::ToggleGrid() {
    state_.ShowGrid = !state_.ShowGrid;
    Layout();
}

ViewportSize ViewController::CanvasSize() const {
    if (!image_) return {};
    return iw::CanvasSize(state_, image_->width, image_->height);
}

Point ViewController::CanvasToImage(int canvasX, int canvasY) const {
    return iw::CanvasToImage(canvasX, canvasY, state_.PixelSize);
}

}  // namespace iw
