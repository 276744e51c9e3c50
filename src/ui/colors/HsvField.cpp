#include "ui/colors/HsvField.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace iw::ui {
namespace {

constexpr int kSteps = 256;

QRgb Opaque(PackedColor color) {
    return qRgb(RedOf(color), GreenOf(color), BlueOf(color));
}

double Unit(int position, int length) {
    return length > 1 ? std::clamp(static_cast<double>(position) / (length - 1), 0.0, 1.0) : 0.0;
}

// A marker that shows on light and dark colours alike: black ring inside a white one.
void DrawRing(QPainter& painter, QPointF centre, double radius) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 3));
    painter.drawEllipse(centre, radius, radius);
    painter.setPen(QPen(Qt::black, 1));
    painter.drawEllipse(centre, radius, radius);
}

}  // namespace

HsvField::HsvField(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picField"));
    setMinimumSize(160, 160);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setCursor(Qt::CrossCursor);
}

void HsvField::SetHsv(const Hsv& hsv) {
    hsv_ = hsv;
    update();
}

void HsvField::paintEvent(QPaintEvent*) {
    if (fieldHue_ != hsv_.hue || field_.isNull()) {
        field_ = QImage(kSteps, kSteps, QImage::Format_RGB32);
        for (int y = 0; y < kSteps; ++y) {
            auto* row = reinterpret_cast<QRgb*>(field_.scanLine(y));
            for (int x = 0; x < kSteps; ++x)
                row[x] = Opaque(HsvToRgb({hsv_.hue, Unit(x, kSteps), 1 - Unit(y, kSteps)}));
        }
        fieldHue_ = hsv_.hue;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), field_);
    DrawRing(painter, {hsv_.saturation * (width() - 1), (1 - hsv_.value) * (height() - 1)}, 5);
}

void HsvField::Pick(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) return;
    const QPoint at = event->position().toPoint();
    emit Picked(Unit(at.x(), width()), 1 - Unit(at.y(), height()));
}

HueStrip::HueStrip(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picHue"));
    setFixedWidth(24);
    setMinimumHeight(160);
    setCursor(Qt::PointingHandCursor);
    strip_ = QImage(1, kSteps * 2, QImage::Format_RGB32);
    for (int y = 0; y < strip_.height(); ++y)
        strip_.setPixel(0, y, Opaque(HsvToRgb({360.0 * y / strip_.height(), 1, 1})));
}

void HueStrip::SetHue(double hue) {
    hue_ = hue;
    update();
}

void HueStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect bar = rect().adjusted(4, 0, -4, 0);
    painter.drawImage(bar, strip_);
    // Two triangles point at the hue from either side.
    const double y = hue_ / 360.0 * (height() - 1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::WindowText));
    painter.drawPolygon(QPolygonF({QPointF(0, y - 4), QPointF(5, y), QPointF(0, y + 4)}));
    const double right = width();
    painter.drawPolygon(
        QPolygonF({QPointF(right, y - 4), QPointF(right - 5, y), QPointF(right, y + 4)}));
}

void HueStrip::Pick(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) return;
    emit Picked(std::min(359.0, Unit(event->position().toPoint().y(), height()) * 360.0));
}

}  // namespace iw::ui
