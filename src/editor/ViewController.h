#pragma once
// The zoom and the grid of the canvas for the image being edited: the window reports its
// canvas area and forwards the zoom and grid commands; the layout runs after each.

#include <optional>

#include "editor/EditorObserver.h"
#include "editor/Zoom.h"

namespace iw {

class ViewController {
  public:
    explicit ViewController(EditorEvents& events) : events_(events) {}

    // Start-up: PixelSize, FitInWindow and ShowGrid from the settings.
    void Restore(const ViewState& state);
    // The window's canvas area changed size.
    void SetViewport(ViewportSize viewport);
    // The sides of the image being edited, whenever another image is shown.
    void ShowImage(int width, int height);
    // Runs the layout again.
    void Layout();

    // Zoom in (+1, then the cap), zoom out (-1) and normal zoom (1): each turns FitInWindow
    // off and runs the layout. Without an image they do nothing.
    void ZoomIn();
    void ZoomOut();
    void NormalZoom();
    void SetFitInWindow(bool fit);
    // The grid toggle (the window mirrors ShowGrid on the tool bar's "Grid" button).
    void ToggleGrid();

    const ViewState& State() const { return state_; }
    ViewportSize Viewport() const { return viewport_; }
    // The image's size on screen; nothing without an image.
    ViewportSize CanvasSize() const;
    // The image cell under a canvas position, at the current PixelSize.
    Point CanvasToImage(int canvasX, int canvasY) const;

  private:
    void Zoom(int pixelSize);
    void Changed() const { events_.Notify(&IEditorObserver::ViewChanged); }

    EditorEvents& events_;
    ViewState state_;
    ViewportSize viewport_{800, 600};
    std::optional<ViewportSize> image_;  // the sides of the image shown
};

}  // namespace iw
