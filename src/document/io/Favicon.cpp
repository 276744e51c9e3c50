#include "document/io/Favicon.h"

#include <system_error>

#include "codec/png/PngCodec.h"
#include "document/io/FaviconTexts.h"
#include "document/io/IconFileWriter.h"
#include "document/io/PictureImport.h"
#include "imaging/ImageRgbaPixels.h"
#include "imaging/Resampler.h"
#include "services/core/AtomicFile.h"
#include "services/core/OverwriteQuestion.h"
#include "services/core/TextCatalog.h"

namespace iw {
std::string FaviconMarkup(bool touchIcons) {
    std::string markup(texts::kFaviconMarkup);
    markup += "\n";
    if (touchIcons) {
        for (const TouchIcon& icon : kTouchIcons) {
            markup += icon.markup;
            markup += "\n";
        }
    }
    return markup;
}

std::vector<std::filesystem::path> FaviconFiles(const std::filesystem::path& folder,
                                                bool touchIcons) {
    std::vector<std::filesystem::path> files = {folder / kFaviconFileName};
    if (touchIcons) {
        for (const TouchIcon& icon : kTouchIcons)
            files.push_back(folder / icon.file);
    }
    return files;
}

RgbaBuffer LargestImagePixels(const IconSet& set) {
    const int index = BestImage(set, 0);
    return index < 0 ? RgbaBuffer() : ReadImageRgba(set.Image(index));
}

void BuildFaviconSet(const IconSet& source, IconSet& favicon) {
    StartPictureSet(favicon);
    const RgbaBuffer largest = LargestImagePixels(source);
    if (largest.Empty()) return;
    const Resampler resampler(largest);
    for (const int side : kFaviconSides) {
        const int own = BestImage(source, side);
        if (own >= 0 && source.Info(own).bitCount == 32) {
            favicon.InsertIcon(favicon.Count(), source.Image(own).Clone());
        } else {
            AddRgbaImage(
                favicon,
                own >= 0 ? ReadImageRgba(source.Image(own)) : resampler.FitInside(side, side, true),
                32, false);
        }
    }
}

void BuildFaviconSet(const RgbaBuffer& picture, IconSet& favicon) {
    StartPictureSet(favicon);
    if (picture.Empty()) return;
    const Resampler resampler(picture);
    for (const int side : kFaviconSides)
        AddRgbaImage(favicon, resampler.FitInside(side, side, true), 32, false);
}

bool WriteTouchIcons(const RgbaBuffer& source, const std::filesystem::path& folder,
                     const std::function<bool(const std::filesystem::path&)>& replace) {
    if (source.Empty()) return false;
    const Resampler resampler(source);
    for (const TouchIcon& icon : kTouchIcons) {
        const std::filesystem::path file = folder / icon.file;
        std::error_code error;
        if (std::filesystem::exists(file, error) && !replace(file)) continue;
        const RgbaBuffer pixels = resampler.FitInside(icon.side, icon.side, true);
        std::vector<std::uint8_t> stream;
        if (!EncodePngStream(icon.side, icon.side, pixels.Bytes(), stream) ||
            !WriteFileAtomically(file, std::as_bytes(std::span(stream)))) {
            return false;
        }
    }
    return true;
}

FaviconSaveResult SaveFavicon(const std::filesystem::path& folder, const IconSet& set,
                              bool touchIcons, CoreContext& context) {
    const std::filesystem::path target = folder / kFaviconFileName;
    std::error_code error;
    if (std::filesystem::exists(target, error)) {
        const std::string question = target.string() + "\n" + GetText(texts::FaviconExists);
        if (context.messages.ShowMessage(texts::FaviconExists.key, question, texts::kProgramTitle,
                                         MessageType::Exclamation, true,
                                         MessageButtons::YesNo) != MessageAnswer::Yes) {
            return FaviconSaveResult::Cancelled;
        }
    }
    bool saved = WriteIconFile(target.string(), set, context);
    if (saved && touchIcons) {
        saved = WriteTouchIcons(LargestImagePixels(set), folder,
                                [&](const std::filesystem::path& file) {
                                    return ConfirmOverwrite(context.messages, file);
                                });
    }
    if (!saved) {
        context.messages.Show(texts::FaviconNotSaved, MessageType::Critical);
        return FaviconSaveResult::Failed;
    }
    context.messages.Show(texts::FaviconSaved, MessageType::Information);
    return FaviconSaveResult::Saved;
}

}  // namespace iw
