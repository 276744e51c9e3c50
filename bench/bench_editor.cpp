// The editor's per-event work, which must stay far below one frame (16 ms): a flood fill
// of a whole 256 x 256 image, one Pencil stroke of 100 points with the largest circle
// brush (alone, and as the canvas gets it: pointer events through the CanvasController to
// the Pencil tool, with the press's undo snapshot), and the undo snapshot of a 256 x 256
// image.
#include <benchmark/benchmark.h>

#include "document/model/IconImage.h"
#include "editor/Brush.h"
#include "editor/CanvasController.h"
#include "editor/FloodFill.h"
#include "editor/UndoHistory.h"

namespace {

iw::IconImage Image256() {
    iw::IconImage image;
    image.info.widthMinus1 = 255;
    image.info.heightMinus1 = 255;
    image.info.bitCount = 32;
    return image;
}

void FloodFill256(benchmark::State& state) {
    iw::IconImage image = Image256();
    int color = 1;
    for (auto _ : state) {
        // Alternate colours so every pass fills the whole region anew.
        benchmark::DoNotOptimize(iw::FloodFill(image, 128, 128, color, 255));
        color ^= 3;
    }
}
BENCHMARK(FloodFill256)->Unit(benchmark::kMicrosecond);

void PencilStrokeLCircle100(benchmark::State& state) {
    iw::IconImage image = Image256();
    for (auto _ : state) {
        iw::StampBrush(image, "LCircle", 20, 20, 5, 255);
        iw::Point last{20, 20};
        for (int i = 1; i < 100; ++i) {
            const iw::Point next{20 + i, 20 + i / 2};  // one cell a step: 100 stamps
            iw::BrushStroke(image, "LCircle", last, next, 5, 255);
            last = next;
        }
        benchmark::ClobberMemory();
    }
}
BENCHMARK(PencilStrokeLCircle100)->Unit(benchmark::kMicrosecond);

// The edited image and its undo history, as the Editor keeps them for its canvas.
struct CanvasHost final : iw::ICanvasHost {
    iw::IconImage* EditedImage() override { return &image; }
    void AddUndo() override { history.AddUndo(image); }
    void StrokeFinished() override {}
    iw::IconImage image = Image256();
    iw::UndoHistory history;
};

struct HotspotHost final : iw::IHotspotHost {
    void HotspotMoved() override {}
};

void CanvasPencilStrokeLCircle100(benchmark::State& state) {
    CanvasHost host;
    iw::EditorEvents events;
    iw::ToolControls tools(events);
    iw::ClockRandomSource random;
    iw::IconSet set;
    HotspotHost hotspotHost;
    iw::HotspotControl hotspot(set, hotspotHost, events);
    iw::CanvasController canvas(host, tools, hotspot, random, events);
    tools.SetBrushShape("LCircle");
    tools.SetForeColor(5);
    for (auto _ : state) {
        canvas.PointerPress({20, 20}, iw::MouseButton::Left);
        for (int i = 1; i < 100; ++i)
            canvas.PointerMove({20 + i, 20 + i / 2});
        canvas.PointerRelease({119, 69});
        benchmark::ClobberMemory();
    }
}
BENCHMARK(CanvasPencilStrokeLCircle100)->Unit(benchmark::kMicrosecond);

void AddUndo256(benchmark::State& state) {
    iw::IconImage image = Image256();
    iw::UndoHistory history;
    for (auto _ : state) {
        history.AddUndo(image);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(AddUndo256)->Unit(benchmark::kMicrosecond);

}  // namespace
