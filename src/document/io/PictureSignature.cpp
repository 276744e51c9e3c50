#include "document/io/PictureSignature.h"

#include <cstring>

#include "services/core/CheckedBytes.h"

namespace iw {
namespace {

bool StartsWith(std::span<const std::uint8_t> bytes, const char* prefix, std::size_t length,
                std::size_t at = 0) {
    return RangeFits(at, length, bytes.size()) &&
           std::memcmp(bytes.data() + at, prefix, length) == 0;
}

}  // namespace

PictureKind DetectPictureKind(std::span<const std::uint8_t> bytes) {
    if (StartsWith(bytes, "\x89PNG\r\n\x1a\n", 8)) return PictureKind::Png;
    if (StartsWith(bytes, "\xFF\xD8\xFF", 3)) return PictureKind::Jpeg;
    if (StartsWith(bytes, "GIF87a", 6) || StartsWith(bytes, "GIF89a", 6)) return PictureKind::Gif;
    if (StartsWith(bytes, "II*\0", 4) || StartsWith(bytes, "MM\0*", 4)) return PictureKind::Tiff;
    if (StartsWith(bytes, "RIFF", 4) && StartsWith(bytes, "WEBP", 4, 8)) return PictureKind::WebP;
    // "BM" alone is too weak a mark: also ask for one of the known DIB header sizes.
    if (StartsWith(bytes, "BM", 2) && bytes.size() >= 18) {
        std::uint32_t dibSize = LoadLE32(bytes.data() + 14);
        if (dibSize == 12 || dibSize == 40 || dibSize == 52 || dibSize == 56 || dibSize == 64 ||
            dibSize == 108 || dibSize == 124) {
            return PictureKind::Bmp;
        }
    }
    return PictureKind::None;
}

}  // namespace iw
