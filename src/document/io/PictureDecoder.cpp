#include "document/io/PictureDecoder.h"

#include <cstring>

#include "document/io/PictureSignature.h"
#include "services/core/CheckedBytes.h"

namespace iw {

PictureFormat DetectPictureFormat(std::span<const std::uint8_t> bytes) {
    if (bytes.size() >= 6 && std::memcmp(bytes.data(), "8BPS", 4) == 0) return PictureFormat::Psd;
    // An icon: reserved 0, type 1 and at least one entry.
    if (bytes.size() >= 6 && LoadLE16(bytes.data()) == 0 && LoadLE16(bytes.data() + 2) == 1 &&
        LoadLE16(bytes.data() + 4) > 0) {
        return PictureFormat::Ico;
    }
    switch (DetectPictureKind(bytes)) {
        case PictureKind::Png:
            return PictureFormat::Png;
        case PictureKind::Jpeg:
            return PictureFormat::Jpeg;
        case PictureKind::Gif:
            return PictureFormat::Gif;
        case PictureKind::Bmp:
            return PictureFormat::Bmp;
        case PictureKind::Tiff:
            return PictureFormat::Tiff;
        case PictureKind::WebP:
            return PictureFormat::WebP;
        case PictureKind::None:
            break;
    }
    return PictureFormat::Unknown;
}

}  // namespace iw
