#include "ui/adapters/QtClipboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QMimeData>

#include "ui/adapters/RgbaImage.h"

namespace iw::ui {
namespace {

const QString kPngMime = QStringLiteral("image/png");

}  // namespace

void QtClipboard::PutPicture(const RgbaPicture& picture) {
    const QImage image = ImageOfPicture(picture);
    if (image.isNull()) return;
    auto* data = new QMimeData;
    data->setImageData(image);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    if (image.save(&buffer, "PNG")) data->setData(kPngMime, png);
    clipboard_.setMimeData(data);
}

std::optional<RgbaPicture> QtClipboard::TakePicture() {
    const QMimeData* data = clipboard_.mimeData();
    if (!data) return std::nullopt;
    QImage image;
    if (data->hasFormat(kPngMime)) image = QImage::fromData(data->data(kPngMime), "PNG");
    if (image.isNull() && data->hasImage()) image = qvariant_cast<QImage>(data->imageData());
    RgbaPicture picture = PictureOfQImage(image);
    if (!picture.WellFormed()) return std::nullopt;
    return picture;
}

bool QtClipboard::HasPicture() const {
    const QMimeData* data = clipboard_.mimeData();
    return data && (data->hasImage() || data->hasFormat(kPngMime));
}

}  // namespace iw::ui
