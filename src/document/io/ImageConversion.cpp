#include "document/io/ImageConversion.h"

#include <algorithm>

#include "document/io/PictureImport.h"
#include "imaging/Resampler.h"
#include "services/core/TextCatalog.h"

namespace iw {

bool ConvertPicture(const RgbaBuffer& picture, std::span<const IconInfo> formats, IconSet& set,
                    IProgressSink& progress) {
    StartPictureSet(set);
    if (picture.Empty() || formats.empty()) return false;
    progress.SetStatus(GetText(texts::ImportingImage));
    const Resampler source(picture);
    const int count = static_cast<int>(std::min<std::size_t>(formats.size(), IconSet::kMaxImages));
    for (int i = 0; i < count; ++i) {
        const IconInfo& format = formats[static_cast<std::size_t>(i)];
        const int width = std::clamp(format.Width(), 1, IconSet::kMaxSide);
        const int height = std::clamp(format.Height(), 1, IconSet::kMaxSide);
        const int index = AddRgbaImage(set, source.FitInside(width, height, true), format.bitCount,
                                       format.png != 0);
        if (index >= 0) set.Info(index).rate = format.rate;
        progress.SetProgress(i + 1, count);
        progress.Yield();
    }
    progress.SetStatus("");
    return !set.Empty();
}

}  // namespace iw
