#pragma once
// The drawing canvas: pointer and key events handed to the current tool, the floating
// selection above the image, and the status text for the pixel under the mouse.

#include <memory>
#include <optional>
#include <string>

#include "editor/EditorObserver.h"
#include "editor/HotspotControl.h"
#include "editor/ToolControls.h"
#include "editor/tools/StandardTools.h"

namespace iw {

// What the canvas asks of the editor that holds it.
class ICanvasHost {
  public:
    virtual ~ICanvasHost() = default;
    // The image being edited; nullptr while the set is empty.
    virtual IconImage* EditedImage() = 0;
    // Records the edited image before a change (Undo can bring it back).
    virtual void AddUndo() = 0;
    // A stroke that recorded an undo snapshot or changed the image has ended, or a floating
    // selection was dropped: the image has changed.
    virtual void StrokeFinished() = 0;
};

class CanvasController final : private IUndoRecorder, public IToolSwitchListener {
  public:
    CanvasController(ICanvasHost& host, ToolControls& tools, HotspotControl& hotspot,
                     IRandomSource& random, EditorEvents& events,
                     ToolSet toolSet = StandardTools());

    // Pointer events in image cells (ViewController::CanvasToImage). A stroke belongs to
    // the tool that took the press, until the release; another press meanwhile is ignored,
    // and so is a move that stays on its cell. The release first moves the tool to its cell.
    // While the hotspot is being set, a press sets it instead.
    void PointerPress(Point cell, MouseButton button, KeyModifiers modifiers = {});
    void PointerMove(Point cell, KeyModifiers modifiers = {});
    void PointerRelease(Point cell, KeyModifiers modifiers = {});
    // A key for the current tool (Escape also ends setting the hotspot); false when it has
    // no use for it (the window passes it on).
    bool KeyPress(const KeyEvent& event);
    bool Pressed() const { return stroke_.has_value(); }

    // The cursor over a cell, and the status bar text for the pixel there ("" outside).
    CursorHint CursorAt(Point cell) const;
    std::string StatusTextAt(Point cell) const;

    // The picture floating above the image (selected, pasted or placed text), or nullptr.
    // The window paints it over the image and outlines FloatingSelection()->Rect().
    const IFloatingSelection* FloatingSelection() const { return floating_.get(); }
    // The rectangle the Select tool is dragging out (clipped to the image), shown as a
    // marching outline; nothing when no rectangle is being dragged.
    std::optional<CellRect> RubberBand() const;
    // Paints the floating selection into the image (opaque or transparent as chosen).
    // Undo, Repeat, switching images or tools, saving and AddUndo do this first. False
    // when there was none.
    bool DropFloatingSelection();
    // A new floating selection (paste, Select All, text); an old one is dropped first.
    void Float(std::unique_ptr<IFloatingSelection> floating);
    // Hands the floating selection over without dropping it (nullptr when there is none),
    // for a command that changes its pixels and floats the result again.
    std::unique_ptr<IFloatingSelection> TakeFloatingSelection() { return std::move(floating_); }
    // Throws the floating selection away (Cut, Delete). False when there was none.
    bool DiscardFloatingSelection();
    // Another tool: the floating selection is dropped, setting the hotspot ends.
    void ToolSwitched(ToolId from, ToolId to) override;
    // Cuts a stroke short (another image).
    void CancelStroke();
    // A new set: the stroke is cut short, a floating selection let go, since the image it
    // floated over is gone, and setting the hotspot ends.
    void Reset();

  private:
    struct Stroke {
        ITool* tool;
        MouseButton button;
        Point last;
        bool changed;  // it recorded an undo snapshot or changed the image
    };

    void AddUndo() override;
    ITool* CurrentTool() const;
    ToolContext Context(IconImage& image);
    void Apply(IconImage& image, const ToolResult& result);

    ICanvasHost& host_;
    ToolControls& tools_;
    HotspotControl& hotspot_;
    IRandomSource& random_;
    EditorEvents& events_;
    ToolSet toolSet_;
    std::optional<Stroke> stroke_;
    std::unique_ptr<IFloatingSelection> floating_;
};

}  // namespace iw
