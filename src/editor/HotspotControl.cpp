#include "editor/HotspotControl.h"

#include "editor/PixelPlot.h"

namespace iw {

bool HotspotControl::Offered() const {
    return set_.mode != FileMode::ICO && !set_.Empty();
}

bool HotspotControl::Begin() {
    if (!Offered()) return false;
    setting_ = true;
    events_.Notify(&IEditorObserver::HotspotChanged);
    return true;
}

void HotspotControl::Cancel() {
    if (setting_) End();
}

void HotspotControl::End() {
    setting_ = false;
    events_.Notify(&IEditorObserver::HotspotChanged);
}

std::optional<Point> HotspotControl::Position() const {
    if (set_.mode == FileMode::ICO) return std::nullopt;
    return Point{set_.properties.hotspotX, set_.properties.hotspotY};
}

bool HotspotControl::Press(Point cell, const IconImage& image) {
    if (!setting_) return false;
    if (Offered() && InsideImage(image, cell.x, cell.y)) {
        set_.properties.hotspotX = static_cast<std::int16_t>(cell.x);
        set_.properties.hotspotY = static_cast<std::int16_t>(cell.y);
        host_.HotspotMoved();
    }
    End();
    return true;
}

}  // namespace iw
