#pragma once
// What a tool of the canvas is: an object that receives the pointer (and key) events of the
// canvas while it is the current tool, through a narrow context that holds what a tool may
// touch. Each tool lives in a file of its own; StandardTools.h lists them.

#include <memory>
#include <optional>

#include "document/model/IconImage.h"
#include "editor/Airbrush.h"
#include "editor/Geometry.h"
#include "editor/ToolState.h"

namespace iw {

enum class MouseButton { Left, Right };

struct KeyModifiers {
    bool shift = false;
    bool control = false;
    bool alt = false;
};

// A pointer event in image cells (see CanvasToImage). Moves and the release carry the
// button that went down.
struct PointerEvent {
    Point cell;
    MouseButton button = MouseButton::Left;
    KeyModifiers modifiers;
};

// The keys the canvas passes to the current tool: the arrows move a floating selection by a
// cell (eight with Shift), Enter and Escape drop it, Delete throws it away.
enum class CanvasKey { Left, Right, Up, Down, Enter, Escape, Delete };

struct KeyEvent {
    CanvasKey key;
    KeyModifiers modifiers;
};

// What the window shows as the mouse cursor over a cell: the current tool's own cursor, or
// the one that says the thing under the pointer can be dragged (a floating selection).
enum class CursorHint { Tool, Move };

// A picture held above the image and not yet part of it: the Select tool's lifted
// rectangle, a pasted picture or placed text. The canvas paints it over the image at its
// origin; dropping it paints it into the image.
class IFloatingSelection {
  public:
    virtual ~IFloatingSelection() = default;
    // The image cell of its top-left corner (it may lie partly outside the image).
    virtual Point Origin() const = 0;
    // Its pixels: the top-left width by height cells of both planes, at the depth of the
    // image it floats over.
    virtual const IconImage& Pixels() const = 0;
    // Its outline in image cells.
    CellRect Rect() const {
        const IconInfo& info = Pixels().info;
        return {Origin().x, Origin().y, info.Width(), info.Height()};
    }
    virtual void MoveTo(Point origin) = 0;
    // Paints it into `image`: opaque copies every pixel, transparent leaves the image's own
    // pixel wherever the selection's is transparent.
    virtual void Drop(IconImage& image, SelectionMode mode) = 0;
};

// Records the image before a change, so that Undo can bring it back.
class IUndoRecorder {
  public:
    virtual ~IUndoRecorder() = default;
    virtual void AddUndo() = 0;
};

// Where Pick Color puts what it picks.
class IColorPicker {
  public:
    virtual ~IColorPicker() = default;
    // The left button picks into the foreground (and, from a 32-bit image, the alpha into
    // the current alpha); the right button into the background.
    virtual void TakePickedColor(MouseButton button, PackedColor color,
                                 std::optional<int> alpha) = 0;
};

// What a tool may touch while it handles one event.
struct ToolContext {
    IconImage& image;                               // the image being edited
    const ToolState& options;                       // colours, alpha and tool options
    IUndoRecorder& undo;                            // before the first change of a stroke
    IRandomSource& random;                          // the airbrush's chances
    IColorPicker& picker;                           // Pick Color
    std::unique_ptr<IFloatingSelection>& floating;  // Select and Text; empty when none
};

// What an event did, so the canvas repaints only what it must.
struct ToolResult {
    bool imageChanged = false;
    bool selectionChanged = false;  // the floating selection or the rubber band
};

// The colour a painting tool plots for the button: the left button paints with the
// foreground colour, the right with the background colour, both mapped to the palette of a
// 1-bit or 4-bit image.
PackedColor PaintColor(const ToolContext& context, MouseButton button);

class ITool {
  public:
    virtual ~ITool() = default;
    // The button went down on a cell. Painting tools record an undo snapshot here first.
    virtual ToolResult Press(ToolContext& context, const PointerEvent& event) = 0;
    // The pointer reached another cell with the button held.
    virtual ToolResult Move(ToolContext& context, const PointerEvent& event) = 0;
    // The button came up (after a Move to the release's cell).
    virtual ToolResult Release(ToolContext&, const PointerEvent&) { return {}; }
    // A key while this tool is current; nothing when the tool has no use for it.
    virtual std::optional<ToolResult> Key(ToolContext&, const KeyEvent&) { return std::nullopt; }
    // The cursor over a cell while no button is held.
    virtual CursorHint CursorAt(const IFloatingSelection* /*floating*/, Point /*cell*/) const {
        return CursorHint::Tool;
    }
    // A stroke was cut short (another image, a new set): forget it.
    virtual void Cancel() {}
    // The rectangle being dragged out while the button is held, clipped to the image.
    virtual std::optional<CellRect> RubberBand() const { return std::nullopt; }
};

}  // namespace iw
