// Select: drag out a rectangle; at the release its cells are lifted out of the image as a
// floating selection (the undo snapshot is taken first), leaving a transparent hole. A
// press inside the floating selection drags it; the arrow keys move it a cell, eight with
// Shift. A press outside it drops it into the image and starts a new rectangle; a click
// that does not move makes none. Enter and Escape drop it, Delete throws it away (the hole
// stays: Undo brings the cells back).
#include "editor/FloatingPicture.h"
#include "editor/PixelPlot.h"
#include "editor/tools/StandardTools.h"

namespace iw {
namespace {

constexpr int kShiftStep = 8;

CellRect WholeImage(const IconImage& image) {
    return {0, 0, ImageWidth(image), ImageHeight(image)};
}

class SelectTool final : public ITool {
  public:
    ToolResult Press(ToolContext& context, const PointerEvent& event) override {
        Cancel();
        if (context.floating && context.floating->Rect().Contains(event.cell)) {
            grab_ = event.cell;
            grabbedOrigin_ = context.floating->Origin();
            return {};
        }
        ToolResult result;
        if (context.floating) {
            context.floating->Drop(context.image, context.options.Selection);
            context.floating.reset();
            result = {true, true};
        }
        anchor_ = event.cell;
        Band(context, event.cell);
        return result;
    }

    ToolResult Move(ToolContext& context, const PointerEvent& event) override {
        if (grab_ && context.floating) {
            const Point to{grabbedOrigin_.x + event.cell.x - grab_->x,
                           grabbedOrigin_.y + event.cell.y - grab_->y};
            context.floating->MoveTo(KeepOverlapping(to, context.floating->Rect(), context.image));
            return {false, true};
        }
        if (!anchor_) return {};
        dragged_ = dragged_ || event.cell != *anchor_;
        Band(context, event.cell);
        return {false, true};
    }

    ToolResult Release(ToolContext& context, const PointerEvent&) override {
        const std::optional<CellRect> band = band_;
        const bool lift = dragged_ && band && !band->Empty();
        const bool wasBanding = anchor_.has_value();
        Cancel();
        if (!lift) return {false, wasBanding};
        context.undo.AddUndo();
        context.floating = LiftOut(context.image, *band);
        return {true, true};
    }

    std::optional<ToolResult> Key(ToolContext& context, const KeyEvent& event) override {
        if (!context.floating) return std::nullopt;
        const int step = event.modifiers.shift ? kShiftStep : 1;
        switch (event.key) {
            case CanvasKey::Left:
                return Nudge(context, -step, 0);
            case CanvasKey::Right:
                return Nudge(context, step, 0);
            case CanvasKey::Up:
                return Nudge(context, 0, -step);
            case CanvasKey::Down:
                return Nudge(context, 0, step);
            case CanvasKey::Enter:
            case CanvasKey::Escape:
                context.floating->Drop(context.image, context.options.Selection);
                context.floating.reset();
                return ToolResult{true, true};
            case CanvasKey::Delete:
                context.floating.reset();
                return ToolResult{false, true};
        }
        return std::nullopt;
    }

    CursorHint CursorAt(const IFloatingSelection* floating, Point cell) const override {
        return floating && floating->Rect().Contains(cell) ? CursorHint::Move : CursorHint::Tool;
    }

    void Cancel() override {
        anchor_.reset();
        grab_.reset();
        band_.reset();
        dragged_ = false;
    }

    std::optional<CellRect> RubberBand() const override { return dragged_ ? band_ : std::nullopt; }

  private:
    void Band(const ToolContext& context, Point to) {
        band_ = Intersect(RectBetween(*anchor_, to), WholeImage(context.image));
    }

    static ToolResult Nudge(ToolContext& context, int dx, int dy) {
        IFloatingSelection& floating = *context.floating;
        const Point to{floating.Origin().x + dx, floating.Origin().y + dy};
        floating.MoveTo(KeepOverlapping(to, floating.Rect(), context.image));
        return {false, true};
    }

    std::optional<Point> anchor_;  // where the rectangle was pressed
    std::optional<CellRect> band_;
    bool dragged_ = false;
    std::optional<Point> grab_;  // where the floating selection was grabbed
    Point grabbedOrigin_;
};

}  // namespace

std::unique_ptr<ITool> MakeSelectTool() {
    return std::make_unique<SelectTool>();
}

}  // namespace iw
