#include "document/io/PictureImport.h"

#include "document/io/IcoLayout.h"
#include "imaging/ColorMapping.h"

namespace iw {

int AddPictureImage(IconSet& set, const c32bppDIB& picture, int bitCount, bool png) {
    const int width = picture.Width();
    const int height = picture.Height();
    if (width < 1 || height < 1 || width > IconSet::kMaxSide || height > IconSet::kMaxSide ||
        !ico::IsSupportedBitCount(bitCount)) {
        return -1;
    }
    const int index = set.AddIcon(width - 1, height - 1, bitCount);
    if (index < 0) return -1;
    IconImage& image = set.Image(index);
    image.info.png = png ? 1 : 0;
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* bgra = picture.TopDownRow(y);
        for (int x = 0; x < width; ++x, bgra += 4) {
            PackedColor color = PackColor(bgra[2], bgra[1], bgra[0]);
            const int alpha = bgra[3];
            if (bitCount == 32) {
                image.Alpha(x, y) = alpha;
            } else if (alpha < 128) {
                color = TransparentColor;
            } else if (bitCount == 4) {
                color = ConvertTo16Color(color);
            } else if (bitCount == 1) {
                color = ConvertToMonoColor(color);
            }
            image.Color(x, y) = color;
        }
    }
    return index;
}

}  // namespace iw
