#include "ui/adapters/TextRenderer.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <algorithm>

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

    // The glyphs' coverage first, in opaque black; the colour is laid on afterwards, so
    // partly covered pixels keep the exact colour (drawing in it with alpha would round it
    // through premultiplication).
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing, look.antialias);
    painter.setRenderHint(QPainter::Antialiasing, look.antialias);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QRect(-box.left(), -box.top(), box.width(), box.height()), kFlags, text);
    painter.end();

    const PackedColor c = IsMarker(look.color) ? PackColor(0, 0, 0) : look.color;
    const int alpha = std::clamp(look.alpha, 0, 255);
    RgbaPicture picture;
    picture.width = image.width();
    picture.height = image.height();
    picture.rgba.resize(static_cast<std::size_t>(picture.width) *
                        static_cast<std::size_t>(picture.height) * 4);
    std::uint8_t* out = picture.rgba.data();
    for (int y = 0; y < picture.height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < picture.width; ++x, out += 4) {
            const int coverage = qAlpha(line[x]);
            out[0] = static_cast<std::uint8_t>(RedOf(c));
            out[1] = static_cast<std::uint8_t>(GreenOf(c));
            out[2] = static_cast<std::uint8_t>(BlueOf(c));
            out[3] = static_cast<std::uint8_t>((coverage * alpha + 127) / 255);
        }
    }
    return picture;
}

}  // namespace iw::ui
