#pragma once
// Set Hotspot, for cursors and animated cursors: a canvas mode in which the next click on
// the image puts the set's one hotspot on the clicked cell, after which the mode ends.

#include <optional>

#include "document/model/IconSet.h"
#include "editor/EditorObserver.h"
#include "editor/Geometry.h"

namespace iw {

// What the hotspot asks of the editor that holds it.
class IHotspotHost {
  public:
    virtual ~IHotspotHost() = default;
    // The hotspot moved: the set has a change to save.
    virtual void HotspotMoved() = 0;
};

class HotspotControl {
  public:
    HotspotControl(IconSet& set, IHotspotHost& host, EditorEvents& events)
        : set_(set), host_(host), events_(events) {}

    // The command is offered for a cursor or an animated cursor with an image.
    bool Offered() const;
    // Enters the mode; false (and nothing happens) when the command is not offered.
    bool Begin();
    // Leaves the mode without setting anything (Escape, another tool, a new set).
    void Cancel();
    // Whether the next click sets the hotspot (the window shows a crosshair meanwhile).
    bool Setting() const { return setting_; }
    // The hotspot to mark on the canvas; nothing for an icon.
    std::optional<Point> Position() const;

    // A click on `cell` of `image` while setting: the hotspot goes there (a cell outside
    // the image sets nothing) and the mode ends. Returns whether the click was taken.
    bool Press(Point cell, const IconImage& image);

  private:
    void End();

    IconSet& set_;
    IHotspotHost& host_;
    EditorEvents& events_;
    bool setting_ = false;
};

}  // namespace iw
