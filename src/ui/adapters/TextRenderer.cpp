#include "ui/adapters/TextRenderer.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <algorithm>

#include "ui/adapters/RgbaImage.h"

namespace iw::ui {
namespace {

constexpr int kDotsPerMetre = 3780;  // 96 dots an inch
constexpr int kFlags = Qt::AlignLeft | Qt::AlignTop;
// Far more than an image holds (the core keeps the top-left 256 x 256), but bounded.
constexpr int kMaxSide = 1024;

}  // namespace

RgbaPicture RenderText(const QString& text, const TextLook& look) {
    if (text.trimmed().isEmpty()) return {};
    QFont font = look.font;
    font.setStyleStrategy(look.antialias ? QFont::PreferAntialias : QFont::NoAntialias);

    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.setDotsPerMeterX(kDotsPerMetre);
    image.setDotsPerMeterY(kDotsPerMetre);
    const QRect box = QFontMetrics(font, &image).boundingRect(QRect(), kFlags, text);
    if (box.isEmpty()) return {};
    image = QImage(std::min(box.width(), kMaxSide), std::min(box.height(), kMaxSide),
                   QImage::Format_ARGB32_Premultiplied);
    image.setDotsPerMeterX(kDotsPerMetre);
    image.setDotsPerMeterY(kDotsPerMetre);
    image.fill(Qt::transparent);

    const PackedColor c = IsMarker(look.color) ? PackColor(0, 0, 0) : look.color;
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing, look.antialias);
    painter.setRenderHint(QPainter::Antialiasing, look.antialias);
    painter.setFont(font);
    painter.setPen(QColor(RedOf(c), GreenOf(c), BlueOf(c), std::clamp(look.alpha, 0, 255)));
    painter.drawText(QRect(-box.left(), -box.top(), box.width(), box.height()), kFlags, text);
    painter.end();
    return PictureOfQImage(image);
}

}  // namespace iw::ui
