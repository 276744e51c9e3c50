#include "document/io/PictureLoading.h"

#include <algorithm>
#include <cstdio>
#include <utility>
#include <vector>

#include "codec/png/FileAccess.h"
#include "codec/png/PngCodec.h"
#include "codec/png/PngPixels.h"
#include "document/io/IconFileReader.h"
#include "document/io/PictureImport.h"
#include "document/io/PsdReader.h"
#include "imaging/ImageRgbaPixels.h"
#include "platform/FileStreams.h"
#include "services/core/TextCatalog.h"

namespace iw {
namespace {

// PNG rows straight into the buffer, which is made only once the header passed the limits.
class BufferRows final : public png::RowSink {
  public:
    BufferRows(RgbaBuffer& picture, const DecodeLimits& limits)
        : picture_(picture), limits_(limits) {}

    bool Begin(std::uint32_t width, std::uint32_t height) override {
        if (!FitsLimits(width, height, limits_)) return false;
        picture_ = RgbaBuffer(static_cast<int>(width), static_cast<int>(height));
        for (auto& row : rows_)
            row.resize(std::size_t{width} * 4);
        return true;
    }
    std::uint8_t* Row(std::uint32_t y) override { return rows_[y & 1].data(); }
    void RowDone(std::uint32_t y) override {
        const std::uint8_t* bgra = rows_[y & 1].data();
        for (int x = 0; x < picture_.Width(); ++x, bgra += 4)
            picture_.At(x, static_cast<int>(y)) = {bgra[2], bgra[1], bgra[0], bgra[3]};
    }

  private:
    RgbaBuffer& picture_;
    const DecodeLimits& limits_;
    std::vector<std::uint8_t> rows_[2];
};

PictureDecodeStatus DecodePng(std::span<const std::uint8_t> bytes, const DecodeLimits& limits,
                              RgbaBuffer& picture) {
    RgbaBuffer decoded;
    BufferRows rows(decoded, limits);
    if (!DecodePngStream(bytes, rows, limits)) return PictureDecodeStatus::Corrupt;
    picture = std::move(decoded);
    return PictureDecodeStatus::Ok;
}

PictureDecodeStatus DecodeIcon(std::span<const std::uint8_t> bytes, const DecodeLimits& limits,
                               RgbaBuffer& picture) {
    IconSet set;
    NullProgress progress;
    if (!ReadIconData(bytes, "picture.ico", set, progress).Ok())
        return PictureDecodeStatus::Corrupt;
    const int best = BestImage(set);
    const RgbaBuffer pixels = ReadImageRgba(set.Image(best));
    if (!FitsLimits(static_cast<std::uint64_t>(pixels.Width()),
                    static_cast<std::uint64_t>(pixels.Height()), limits)) {
        return PictureDecodeStatus::TooLarge;
    }
    // A picture has no inverting pixels: they stay as the transparent white they read as.
    RgbaBuffer plain(pixels.Width(), pixels.Height());
    std::copy(pixels.Pixels().begin(), pixels.Pixels().end(), plain.Pixels().begin());
    picture = std::move(plain);
    return PictureDecodeStatus::Ok;
}

PictureLoadStatus FromDecodeStatus(PictureDecodeStatus status) {
    switch (status) {
        case PictureDecodeStatus::Ok:
            return PictureLoadStatus::Ok;
        case PictureDecodeStatus::Unsupported:
            return PictureLoadStatus::Unsupported;
        case PictureDecodeStatus::TooLarge:
            return PictureLoadStatus::TooLarge;
        case PictureDecodeStatus::Corrupt:
            break;
    }
    return PictureLoadStatus::Corrupt;
}

PictureLoadStatus DecodePhotoshop(std::span<const std::uint8_t> bytes, const DecodeLimits& limits,
                                  MessageService& messages, RgbaBuffer& picture) {
    PsdStatus status = DecodePsd(bytes, limits, false, picture);
    if (status == PsdStatus::NotRgb) {
        if (messages.Show(texts::PSDBadColor, MessageType::Question, MessageButtons::YesNo) !=
            MessageAnswer::Yes) {
            return PictureLoadStatus::Declined;
        }
        status = DecodePsd(bytes, limits, true, picture);
    }
    if (status == PsdStatus::Ok) return PictureLoadStatus::Ok;
    messages.Show(texts::UnableOpenPSD, MessageType::Critical);
    return status == PsdStatus::TooLarge ? PictureLoadStatus::TooLarge : PictureLoadStatus::Corrupt;
}

}  // namespace

PictureLoadStatus DecodePicture(std::span<const std::uint8_t> bytes,
                                const PictureLoadOptions& options, MessageService& messages,
                                RgbaBuffer& picture) {
    const PictureFormat format = DetectPictureFormat(bytes);
    switch (format) {
        case PictureFormat::Png:
            return FromDecodeStatus(DecodePng(bytes, options.limits, picture));
        case PictureFormat::Ico:
            return FromDecodeStatus(DecodeIcon(bytes, options.limits, picture));
        case PictureFormat::Psd:
            return DecodePhotoshop(bytes, options.limits, messages, picture);
        case PictureFormat::Unknown:
            return PictureLoadStatus::Unsupported;
        default:
            break;
    }
    if (!options.decoder || !options.decoder->Reads(format)) return PictureLoadStatus::Unsupported;
    RgbaBuffer decoded;
    const PictureDecodeStatus status =
        options.decoder->Decode(bytes, format, options.limits, decoded);
    if (status == PictureDecodeStatus::Ok) picture = std::move(decoded);
    return FromDecodeStatus(status);
}

PictureLoadStatus LoadPictureFile(const std::filesystem::path& file,
                                  const PictureLoadOptions& options, MessageService& messages,
                                  RgbaBuffer& picture) {
    std::vector<std::uint8_t> bytes;
    PictureLoadStatus status = PictureLoadStatus::Unreadable;
    if (std::FILE* handle = platform::OpenForReading(file)) {
        if (ReadWholeFile(handle, options.maxFileBytes, bytes)) status = PictureLoadStatus::Ok;
        std::fclose(handle);
    }
    if (status == PictureLoadStatus::Ok) {
        status = DecodePicture(bytes, options, messages, picture);
        if (DetectPictureFormat(bytes) == PictureFormat::Psd) return status;
    }
    if (status != PictureLoadStatus::Ok && options.reportFailure) {
        messages.ShowMessage(texts::CorruptFile.key,
                             GetText(texts::CorruptFile) + "\n" + file.string(),
                             texts::kProgramTitle, MessageType::Exclamation, false);
    }
    return status;
}

}  // namespace iw
