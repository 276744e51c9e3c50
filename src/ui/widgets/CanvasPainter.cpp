#include "ui/widgets/CanvasPainter.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QRegion>
#include <QVarLengthArray>
#include <QVector>
#include <algorithm>

namespace iw::ui {
namespace {

constexpr int kCheckerSquare = 8;  // logical pixels
const QColor kCheckerLight(255, 255, 255);
const QColor kCheckerDark(204, 209, 216);
const QColor kInvertedGround(74, 85, 104);
const QColor kInvertedHatch(200, 210, 224);
const QColor kGridColor(110, 118, 130, 140);
const QColor kHotspotColor(220, 38, 38);
constexpr int kDash = 4;  // the outlines' dashes and gaps, in pixels

// A brush whose tile is drawn at the device's resolution, so that filling with it copies
// the tile instead of scaling it. `paint` draws one tile in logical pixels.
template <typename Paint>
QBrush TileBrush(int side, qreal ratio, Paint paint) {
    QImage tile(QSize(side, side) * ratio, QImage::Format_ARGB32_Premultiplied);
    tile.setDevicePixelRatio(ratio);
    QPainter p(&tile);
    paint(p);
    p.end();
    return QBrush(tile);
}

// The checkerboard behind clear pixels, for the painter's device.
const QBrush& CheckerBrush(qreal ratio) {
    static thread_local std::pair<qreal, QBrush> cached{0, {}};
    if (cached.first != ratio) {
        cached = {ratio, TileBrush(2 * kCheckerSquare, ratio, [](QPainter& p) {
                      p.fillRect(0, 0, 2 * kCheckerSquare, 2 * kCheckerSquare, kCheckerLight);
                      p.fillRect(0, 0, kCheckerSquare, kCheckerSquare, kCheckerDark);
                      p.fillRect(kCheckerSquare, kCheckerSquare, kCheckerSquare, kCheckerSquare,
                                 kCheckerDark);
                  })};
    }
    return cached.second;
}

// The hatch that marks inverting pixels: light lines on a dark ground, opaque.
const QBrush& InvertedHatch(qreal ratio) {
    static thread_local std::pair<qreal, QBrush> cached{0, {}};
    if (cached.first != ratio) {
        cached = {ratio, TileBrush(8, ratio, [](QPainter& p) {
                      p.fillRect(0, 0, 8, 8, kInvertedGround);
                      p.setRenderHint(QPainter::Antialiasing);
                      p.setPen(QPen(kInvertedHatch, 2.0));
                      p.drawLine(QPointF(-1, 9), QPointF(9, -1));
                  })};
    }
    return cached.second;
}

// The cells of `picture` that lie under `area` (logical pixels, `size` a cell), and the
// same cells in logical pixels.
struct CellSpan {
    QRect cells;
    QRect pixels;
};

CellSpan CellsUnder(const QRect& area, QSize picture, int size) {
    const int x0 = std::max(area.left() / size, 0);
    const int y0 = std::max(area.top() / size, 0);
    const int x1 = std::min(area.right() / size, picture.width() - 1);
    const int y1 = std::min(area.bottom() / size, picture.height() - 1);
    const QRect cells(QPoint(x0, y0), QPoint(x1, y1));
    return {cells, QRect(x0 * size, y0 * size, cells.width() * size, cells.height() * size)};
}

// The inverting cells of `span` in a hatch: the runs of inverting cells of each visible row
// make a clip region, and the hatch fills it.
void PaintInverted(QPainter& painter, const QRect& area, const CellSpan& span,
                   const PixelPicture& picture, int size) {
    const QRect cells = span.cells.intersected(picture.invertedCells);
    if (cells.isEmpty()) return;
    QVector<QRect> runs;
    for (int y = cells.top(); y <= cells.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.inverted.constScanLine(y));
        for (int x = cells.left(); x <= cells.right(); ++x) {
            if (line[x] == 0) continue;
            const int start = x;
            while (x + 1 <= cells.right() && line[x + 1] != 0)
                ++x;
            runs.append(QRect(start * size, y * size, (x - start + 1) * size, size));
        }
    }
    // The runs come row by row, left to right: the banded order a region is made of.
    QRegion region;
    region.setRects(runs.constData(), static_cast<int>(runs.size()));
    painter.save();
    painter.setClipRegion(region, Qt::IntersectClip);
    painter.fillRect(area.intersected(region.boundingRect()),
                     InvertedHatch(painter.device()->devicePixelRatioF()));
    painter.restore();
}

void PaintGrid(QPainter& painter, const CellSpan& span, int size) {
    QVarLengthArray<QLine, 600> lines;
    const QRect& px = span.pixels;
    for (int x = span.cells.left(); x <= span.cells.right() + 1; ++x)
        lines.append(QLine(x * size, px.top(), x * size, px.bottom() + 1));
    for (int y = span.cells.top(); y <= span.cells.bottom() + 1; ++y)
        lines.append(QLine(px.left(), y * size, px.right() + 1, y * size));
    painter.setPen(QPen(kGridColor, 0));
    painter.drawLines(lines.constData(), static_cast<int>(lines.size()));
}

// A ring and a cross on the hotspot's cell, outlined in white so they show on any colour.
void PaintHotspot(QPainter& painter, QPoint cell, int size) {
    const QRectF box(cell.x() * size, cell.y() * size, size, size);
    const QPointF centre = box.center();
    const qreal radius = std::max(size * 0.35, 5.0);
    const qreal arm = radius + std::max(size * 0.3, 4.0);
    painter.setRenderHint(QPainter::Antialiasing, true);
    for (const auto& [color, width] : {std::pair{QColor(Qt::white), 4.0}, {kHotspotColor, 2.0}}) {
        painter.setPen(QPen(color, width));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(centre, radius, radius);
        painter.drawLine(QPointF(centre.x() - arm, centre.y()),
                         QPointF(centre.x() + arm, centre.y()));
        painter.drawLine(QPointF(centre.x(), centre.y() - arm),
                         QPointF(centre.x(), centre.y() + arm));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

// The picture's cells under `area` (in the picture's own logical coordinates).
void PaintCells(QPainter& painter, const QRect& area, const PixelPicture& picture, int size) {
    const CellSpan span = CellsUnder(area, picture.Size(), size);
    if (span.cells.isEmpty()) return;
    painter.drawImage(span.pixels, picture.colors, span.cells);
    if (!picture.inverted.isNull()) PaintInverted(painter, area, span, picture, size);
}

// A marching outline just inside `box`: black dashes over white, so it shows on any colour.
void PaintOutline(QPainter& painter, const QRect& box, int dashOffset) {
    const QRect outline = box.adjusted(0, 0, -1, -1);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 0));
    painter.drawRect(outline);
    QPen dashes(Qt::black, 0, Qt::CustomDashLine);
    dashes.setDashPattern({kDash, kDash});
    dashes.setDashOffset(dashOffset % (2 * kDash));
    painter.setPen(dashes);
    painter.drawRect(outline);
}

void PaintFloating(QPainter& painter, const QRect& exposed, const CanvasScene& scene) {
    const int size = scene.pixelSize;
    const QRect box(scene.floatingOrigin * size, scene.floating->Size() * size);
    const QRect area = exposed.intersected(box);
    if (!area.isEmpty()) {
        painter.save();
        painter.translate(box.topLeft());
        PaintCells(painter, area.translated(-box.topLeft()), *scene.floating, size);
        painter.restore();
    }
}

}  // namespace

QRegion OutlineRegion(const QRect& cells, int pixelSize) {
    const QRect box(cells.topLeft() * pixelSize, cells.size() * pixelSize);
    return QRegion(box).subtracted(QRegion(box.adjusted(1, 1, -1, -1)));
}

void PaintCanvas(QPainter& painter, const QRect& exposed, const CanvasScene& scene) {
    if (!scene.picture || scene.picture->colors.isNull() || scene.pixelSize < 1) return;
    const int size = scene.pixelSize;
    const QRect canvas(QPoint(0, 0), scene.picture->Size() * size);
    const QRect area = exposed.intersected(canvas);
    if (area.isEmpty()) return;
    painter.save();
    painter.setClipRect(area);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.setBrushOrigin(0, 0);
    painter.fillRect(area, CheckerBrush(painter.device()->devicePixelRatioF()));
    PaintCells(painter, area, *scene.picture, size);
    if (scene.floating && !scene.floating->colors.isNull()) PaintFloating(painter, exposed, scene);
    if (scene.showGrid && size >= kMinGridPixelSize)
        PaintGrid(painter, CellsUnder(area, scene.picture->Size(), size), size);
    // The outlines over the grid, so its lines do not break them.
    if (scene.floating && !scene.floating->colors.isNull()) {
        PaintOutline(painter, QRect(scene.floatingOrigin * size, scene.floating->Size() * size),
                     scene.dashOffset);
    }
    if (scene.band) {
        PaintOutline(painter, QRect(scene.band->topLeft() * size, scene.band->size() * size),
                     scene.dashOffset);
    }
    if (scene.hotspot) PaintHotspot(painter, *scene.hotspot, size);
    painter.restore();
}

}  // namespace iw::ui
