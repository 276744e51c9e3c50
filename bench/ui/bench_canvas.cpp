// The canvas's per-frame and per-stroke work, which must stay far below one frame (16 ms):
// - painting a 256 x 256 image at PixelSize 48 into a 1920 x 1080 viewport (the region a
//   maximised window shows), with the grid, at device pixel ratio 1 and 2, and again with
//   a quarter of the pixels inverting (their hatch fills a clip region of its own);
// - making the picture the canvas paints from (after every change of the image);
// - a Pencil stroke of 100 points through the canvas widget: the mouse events a user's
//   drag sends, each handed to the core, then the one repaint that follows.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <cstdlib>

#include "BenchIcons.h"
#include "ui/main/MainWindow.h"
#include "ui/widgets/CanvasPainter.h"
#include "ui/widgets/CanvasWidget.h"

namespace {

iw::IconImage Image256(bool inverting) {
    iw::IconImage image;
    image.info.widthMinus1 = 255;
    image.info.heightMinus1 = 255;
    image.info.bitCount = 32;
    iw::bench::Paint(image, 3);
    if (inverting) {
        for (int x = 0; x < 128; ++x) {
            for (int y = 0; y < 128; ++y)
                image.Color(x, y) = iw::InverseColor;
        }
    }
    return image;
}

void PaintViewport(benchmark::State& state, bool inverting) {
    const qreal ratio = static_cast<qreal>(state.range(0));
    const iw::ui::PixelPicture picture = iw::ui::MakePixelPicture(Image256(inverting));
    const QRect viewport(0, 0, 1920, 1080);
    QImage target(viewport.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    target.setDevicePixelRatio(ratio);
    iw::ui::CanvasScene scene;
    scene.picture = &picture;
    scene.pixelSize = 48;
    scene.showGrid = true;
    // The middle of the enlarged image, as a scrolled canvas shows it.
    const QPoint scrolled(48 * 100, 48 * 100);
    for (auto _ : state) {
        QPainter painter(&target);
        painter.translate(-scrolled);
        iw::ui::PaintCanvas(painter, viewport.translated(scrolled), scene);
        painter.end();
        benchmark::ClobberMemory();
    }
}

void PaintCanvas256Zoom48(benchmark::State& state) {
    PaintViewport(state, false);
}
BENCHMARK(PaintCanvas256Zoom48)->Arg(1)->Arg(2)->ArgName("ratio")->Unit(benchmark::kMillisecond);

void PaintCanvas256Zoom48Inverting(benchmark::State& state) {
    PaintViewport(state, true);
}
BENCHMARK(PaintCanvas256Zoom48Inverting)
    ->Arg(1)
    ->Arg(2)
    ->ArgName("ratio")
    ->Unit(benchmark::kMillisecond);

void MakePicture256(benchmark::State& state) {
    const iw::IconImage image = Image256(false);
    for (auto _ : state)
        benchmark::DoNotOptimize(iw::ui::MakePixelPicture(image));
}
BENCHMARK(MakePicture256)->Unit(benchmark::kMicrosecond);

// A window editing the 256 x 256 image of the 9-size icon at PixelSize 3.
void PencilStroke100ThroughWidget(benchmark::State& state) {
    iw::test::TempDir temp;
    setenv("XDG_DATA_HOME", temp.Path().c_str(), 1);
    const std::string icon = iw::bench::WriteNineSizeIcon(temp);
    iw::test::MessageFixture messages;
    iw::ui::MainWindowOptions options;
    options.folders.dataFolder = temp / "data";
    options.presenter = &messages.presenter;
    options.splash = false;
    iw::ui::MainWindow window(options);
    window.Start(QString::fromStdString(icon));
    window.resize(1280, 900);
    iw::Editor& editor = window.GetEditor();
    editor.View().NormalZoom();
    editor.View().ZoomIn();
    editor.View().ZoomIn();
    editor.Tools().SetBrushShape("LCircle");
    QWidget* canvas = window.Canvas();
    const auto at = [](int i) { return QPoint(3 * (20 + i) + 1, 3 * (20 + i / 2) + 1); };
    for (auto _ : state) {
        QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, at(0));
        for (int i = 1; i < 99; ++i)
            QTest::mouseMove(canvas, at(i));
        QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, at(99));
        canvas->repaint();
    }
}
BENCHMARK(PencilStroke100ThroughWidget)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
