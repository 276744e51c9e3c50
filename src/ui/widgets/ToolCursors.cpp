#include "ui/widgets/ToolCursors.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <array>
#include <optional>

#include "ui/UiText.h"

namespace iw::ui {
namespace {

constexpr int kCursorSide = 32;  // logical pixels

struct ToolLook {
    std::string_view icon;
    std::optional<QPoint> tip;  // on the 24 x 24 icon; none: a crosshair cursor
};

// In ToolId order.
constexpr std::array<ToolLook, kToolCount> kLooks = {{
    {"select", std::nullopt},
    {"fill", QPoint(20, 20)},
    {"airbrush", QPoint(5, 5)},
    {"text", std::nullopt},
    {"pickcolor", QPoint(4, 20)},
    {"pencil", QPoint(4, 20)},
    {"line", std::nullopt},
    {"gradient", std::nullopt},
    {"ellipse", std::nullopt},
    {"rectangle", std::nullopt},
}};

// The icon at `box`, with a white halo one pixel wide so that it shows on dark pixels too.
void DrawWithHalo(QPainter& painter, const QIcon& icon, const QRect& box, qreal ratio) {
    const QPixmap shape = icon.pixmap(box.size(), ratio);
    QPixmap halo(shape.size());
    halo.setDevicePixelRatio(shape.devicePixelRatio());
    halo.fill(Qt::transparent);
    {
        QPainter p(&halo);
        p.drawPixmap(0, 0, shape);
        p.setCompositionMode(QPainter::CompositionMode_SourceIn);
        p.fillRect(halo.rect(), Qt::white);
    }
    for (int dx = -1; dx <= 1; ++dx) {
        for (int dy = -1; dy <= 1; ++dy)
            painter.drawPixmap(box.topLeft() + QPoint(dx, dy), halo);
    }
    painter.drawPixmap(box.topLeft(), shape);
}

void DrawCrosshair(QPainter& painter, QPoint centre, int arm) {
    for (const auto& [color, width] : {std::pair{QColor(Qt::white), 3}, {QColor(Qt::black), 1}}) {
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(centre.x() - arm, centre.y(), centre.x() - 2, centre.y());
        painter.drawLine(centre.x() + 2, centre.y(), centre.x() + arm, centre.y());
        painter.drawLine(centre.x(), centre.y() - arm, centre.x(), centre.y() - 2);
        painter.drawLine(centre.x(), centre.y() + 2, centre.x(), centre.y() + arm);
    }
}

}  // namespace

std::string_view ToolIconName(ToolId tool) {
    return kLooks[static_cast<std::size_t>(tool)].icon;
}

QCursor ToolCursor(ToolId tool, qreal devicePixelRatio) {
    const ToolLook& look = kLooks[static_cast<std::size_t>(tool)];
    QPixmap pixmap(QSize(kCursorSide, kCursorSide) * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const QIcon icon = UiIcon(look.icon);
    if (look.tip) {
        // The 24-unit icon drawn 24 pixels wide, one pixel in from the edge for its halo.
        DrawWithHalo(painter, icon, QRect(1, 1, 24, 24), devicePixelRatio);
        painter.end();
        return QCursor(pixmap, look.tip->x() + 1, look.tip->y() + 1);
    }
    const QPoint centre(9, 9);
    DrawCrosshair(painter, centre, 8);
    DrawWithHalo(painter, icon, QRect(15, 15, 16, 16), devicePixelRatio);
    painter.end();
    return QCursor(pixmap, centre.x(), centre.y());
}

}  // namespace iw::ui
