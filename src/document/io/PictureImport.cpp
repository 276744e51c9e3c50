#include "document/io/PictureImport.h"

#include <algorithm>
#include <tuple>

#include "document/io/IcoLayout.h"
#include "imaging/ImageRgbaPixels.h"
#include "imaging/Resampler.h"
#include "services/core/TextCatalog.h"

namespace iw {

void StartPictureSet(IconSet& set) {
    set.Clear();
    set.properties = {};
    set.animation = {};
    set.mode = FileMode::ICO;
}

int AddRgbaImage(IconSet& set, const RgbaBuffer& pixels, int bitCount, bool png) {
    const int width = pixels.Width();
    const int height = pixels.Height();
    if (width < 1 || height < 1 || width > IconSet::kMaxSide || height > IconSet::kMaxSide ||
        !ico::IsSupportedBitCount(bitCount)) {
        return -1;
    }
    const int index = set.AddIcon(width - 1, height - 1, bitCount);
    if (index < 0) return -1;
    IconImage& image = set.Image(index);
    image.info.png = png ? 1 : 0;
    WriteImageRgba(image, 0, 0, pixels);
    return index;
}

int AddPictureImage(IconSet& set, const c32bppDIB& picture, int bitCount, bool png) {
    if (picture.Width() < 1 || picture.Height() < 1 || picture.Width() > IconSet::kMaxSide ||
        picture.Height() > IconSet::kMaxSide) {
        return -1;
    }
    RgbaBuffer pixels(picture.Width(), picture.Height());
    for (int y = 0; y < pixels.Height(); ++y) {
        const std::uint8_t* bgra = picture.TopDownRow(y);
        for (int x = 0; x < pixels.Width(); ++x, bgra += 4)
            pixels.At(x, y) = {bgra[2], bgra[1], bgra[0], bgra[3]};
    }
    return AddRgbaImage(set, pixels, bitCount, png);
}

int BestImage(const IconSet& set, int side) {
    int best = -1;
    for (int i = 0; i < set.Count(); ++i) {
        const IconInfo& info = set.Info(i);
        if (side != 0 && (info.Width() != side || info.Height() != side)) continue;
        if (best < 0) {
            best = i;
            continue;
        }
        const IconInfo& b = set.Info(best);
        const int area = info.Width() * info.Height();
        const int bestArea = b.Width() * b.Height();
        if (area > bestArea || (area == bestArea && info.bitCount > b.bitCount)) best = i;
    }
    return best;
}

int BestFitImage(const IconSet& set, int side) {
    // A rank that orders the candidates: exact first, then larger ones from the smallest
    // up, then smaller ones from the largest down; depth breaks ties.
    const auto rank = [side](const IconInfo& info) {
        const int longer = std::max(info.Width(), info.Height());
        const bool exact = info.Width() == side && info.Height() == side;
        const int group = exact ? 0 : (longer >= side ? 1 : 2);
        const int distance = group == 2 ? side - longer : longer - side;
        return std::tuple(group, distance, -static_cast<int>(info.bitCount));
    };
    int best = -1;
    for (int i = 0; i < set.Count(); ++i) {
        if (best < 0 || rank(set.Info(i)) < rank(set.Info(best))) best = i;
    }
    return best;
}

bool ConfirmLargeImport(const RgbaBuffer& picture, MessageService& messages) {
    if (picture.Width() <= kLargeImportSide && picture.Height() <= kLargeImportSide) return true;
    return messages.Show(texts::ImportPicture, MessageType::Exclamation, MessageButtons::YesNo) ==
           MessageAnswer::Yes;
}

void ImportPictureInto(IconImage& image, const RgbaBuffer& picture, IProgressSink& progress) {
    progress.SetStatus(GetText(texts::ImportingImage));
    progress.Yield();
    WriteImageRgba(image, 0, 0,
                   Resampler(picture).FitInside(PlaneWidth(image), PlaneHeight(image), false));
    progress.SetStatus("");
}

}  // namespace iw
