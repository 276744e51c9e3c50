#include "app/shared/QtPictureDecoder.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageReader>

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

namespace iw::app {
namespace {

const char* QtFormatName(PictureFormat format) {
    switch (format) {
        case PictureFormat::Bmp:
            return "bmp";
        case PictureFormat::Gif:
            return "gif";
        case PictureFormat::Jpeg:
            return "jpeg";
        default:
            return nullptr;
    }
}

}  // namespace

bool QtPictureDecoder::Reads(PictureFormat format) const {
    const char* name = QtFormatName(format);
    return name && QImageReader::supportedImageFormats().contains(name);
}

PictureDecodeStatus QtPictureDecoder::Decode(std::span<const std::uint8_t> bytes,
                                             PictureFormat format, const DecodeLimits& limits,
                                             RgbaBuffer& picture) {
    const char* name = QtFormatName(format);
    if (!name || bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        return PictureDecodeStatus::Unsupported;
    }
    const QByteArray data = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                                    static_cast<qsizetype>(bytes.size()));
    QBuffer device;
    device.setData(data);
    if (!device.open(QIODevice::ReadOnly)) return PictureDecodeStatus::Corrupt;
    QImageReader reader(&device, name);
    reader.setAutoDetectImageFormat(false);
    reader.setDecideFormatFromContent(false);
    const QSize size = reader.size();
    if (!size.isValid() || size.isEmpty()) return PictureDecodeStatus::Corrupt;
    if (!FitsLimits(static_cast<std::uint64_t>(size.width()),
                    static_cast<std::uint64_t>(size.height()), limits)) {
        return PictureDecodeStatus::TooLarge;
    }
    // Qt refuses on its own beyond this many MiB; 4 bytes a pixel at the limit, rounded up.
    const std::uint64_t mebibytes = (limits.maxPixels * 4 + (1u << 20) - 1) >> 20;
    QImageReader::setAllocationLimit(
        static_cast<int>(std::min<std::uint64_t>(mebibytes, 1u << 20)));
    const QImage image = reader.read().convertToFormat(QImage::Format_RGBA8888);
    // The decoded picture must be the one the header announced.
    if (image.isNull() || image.size() != size) return PictureDecodeStatus::Corrupt;
    RgbaBuffer out(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        std::memcpy(&out.At(0, y), image.constScanLine(y),
                    static_cast<std::size_t>(image.width()) * 4);
    }
    picture = std::move(out);
    return PictureDecodeStatus::Ok;
}

}  // namespace iw::app
