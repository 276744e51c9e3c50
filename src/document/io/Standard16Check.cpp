#include "document/io/IconReaderSteps.h"
#include "imaging/StandardColors.h"

namespace iw::detail {
namespace {

bool UsesOnlyStandard16(const IconImage& image) {
    const int width = image.info.Width();
    const int height = image.info.Height();
    for (int y = 0; y < height; ++y) {
        auto row = image.Row(y, IconImage::ColorPlane);
        for (int x = 0; x < width; ++x) {
            const PackedColor c = row[static_cast<std::size_t>(x)];
            if (!IsMarker(c) && !IsStandard16Color(c)) return false;
        }
    }
    return true;
}

}  // namespace

bool ConvertNonStandard16Images(IconSet& set) {
    bool changed = false;
    for (int i = 0; i < set.Count(); ++i) {
        IconInfo& info = set.Info(i);
        if (info.bitCount == 4 && !UsesOnlyStandard16(set.Image(i))) {
            info.bitCount = 8;
            changed = true;
        }
    }
    return changed;
}

}  // namespace iw::detail
