#pragma once
// "Convert an Image": a whole new icon set from one picture, with the formats of a
// template.

#include <span>
#include <vector>

#include "document/model/IconSet.h"
#include "imaging/RgbaBuffer.h"
#include "services/core/UserInterface.h"

namespace iw {

// Empties `set` (properties included, mode ICO) and adds one image for each of `formats`
// (sides, bit count and PNG flag as given; at most 175 images). Every image is resampled
// from the picture itself, in one pass whatever the factor, to fit inside its sides with
// the aspect kept, centred on transparent pixels; then it goes to its depth by the rules
// of WriteImageRgba (4-bit through the sixteen colours, 1-bit black and white, below 32
// bits alpha under 128 transparent; 8-bit images get their palette when written). Status
// "Importing Image..." and progress by image. False, with the set empty, when the
// picture or the list of formats is empty.
bool ConvertPicture(const RgbaBuffer& picture, std::span<const IconInfo> formats, IconSet& set,
                    IProgressSink& progress);

// The formats of a template's entries (anything with widthMinus1, heightMinus1, bits and
// compressed), for ConvertPicture.
template <typename Entry>
std::vector<IconInfo> FormatsOf(const std::vector<Entry>& entries) {
    std::vector<IconInfo> formats;
    for (const Entry& entry : entries) {
        IconInfo format;
        format.widthMinus1 = entry.widthMinus1;
        format.heightMinus1 = entry.heightMinus1;
        format.bitCount = entry.bits;
        format.png = entry.compressed;
        formats.push_back(format);
    }
    return formats;
}

}  // namespace iw
