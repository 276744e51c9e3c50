#include "imaging/Palette256.h"

#include <array>
#include <climits>
#include <string>

#include "imaging/ColorMapping.h"
#include "imaging/PaletteDither.h"
#include "services/core/TextCatalog.h"

namespace iw {

namespace {

// Colour -> the last of entries 0..255 equal to it, by open addressing. Built once per
// build so each pixel costs one look-up instead of a scan of all 256 entries.
class LastEqualEntry {
  public:
    explicit LastEqualEntry(const std::vector<PackedColor>& palette) {
        slots_.fill({kEmpty, 0});
        for (int k = 0; k < Palette256Result::kEntries; ++k) {
            Slot& slot = slots_[SlotOf(palette[static_cast<std::size_t>(k)])];
            slot.color = palette[static_cast<std::size_t>(k)];
            slot.index = static_cast<std::uint8_t>(k);  // a later equal entry overwrites
        }
    }

    // The index, or -1 when no entry equals `color`.
    int Find(PackedColor color) const {
        const Slot& slot = slots_[SlotOf(color)];
        return slot.color == kEmpty ? -1 : slot.index;
    }

  private:
    static constexpr PackedColor kEmpty = INT32_MIN;  // no palette entry can hold it
    static constexpr std::size_t kSlots = 1024;       // at most 256 in use
    struct Slot {
        PackedColor color;
        std::uint8_t index;
    };
    // The slot holding `color`, or the empty slot where it would go.
    std::size_t SlotOf(PackedColor color) const {
        std::size_t at = (static_cast<std::uint32_t>(color) * 2654435761u) >> 22;
        while (slots_[at].color != kEmpty && slots_[at].color != color)
            at = (at + 1) % kSlots;
        return at;
    }
    std::array<Slot, kSlots> slots_;
};

}  // namespace

PaletteBuilder::PaletteBuilder(const IconImage& image, IProgressSink* progress)
    : width_(image.info.Width()), height_(image.info.Height()), progress_(progress) {
    work_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            const PackedColor c = image.Color(x, y);
            // A colour has three bytes; anything above them is not part of it.
            work_[Cell(x, y)] = IsMarker(c) ? c : (c & 0xFFFFFF);
        }
    }
}

void PaletteBuilder::Yield() {
    if (progress_ != nullptr) progress_->Yield();
}

void PaletteBuilder::ExactPalette() {
    CollectColors([](PackedColor c) { return c; });
}

void PaletteBuilder::DitherToPalette() {
    dithered_ = true;
    iw::DitherToPalette(work_, width_, height_, palette_, paletteLast_, progress_);
}

Palette256Result PaletteBuilder::Finish() {
    Palette256Result result;
    if (palette_.size() < Palette256Result::kEntries)
        palette_.resize(Palette256Result::kEntries, 0);
    palette_[Palette256Result::kBlackEntry] = 0x000000;
    palette_[Palette256Result::kWhiteEntry] = 0xFFFFFF;

    for (int k = 0; k < Palette256Result::kEntries; ++k) {
        const PackedColor c = palette_[static_cast<std::size_t>(k)];
        const auto at = static_cast<std::size_t>(k) * 4;
        result.paletteBytes[at + 0] = static_cast<std::uint8_t>(BlueOf(c));
        result.paletteBytes[at + 1] = static_cast<std::uint8_t>(GreenOf(c));
        result.paletteBytes[at + 2] = static_cast<std::uint8_t>(RedOf(c));
        result.paletteBytes[at + 3] = 0;
    }

    // Pixels are handled in the bitmap's order, bottom row first and left to right. A pixel
    // whose colour no entry holds takes the index of the pixel handled before it: the
    // index is deliberately carried over, starting at 0. This can only happen when an
    // image of at most 254 coarse colours has more exact ones than entries 0..253 hold.
    const LastEqualEntry lookup(palette_);
    result.width = width_;
    result.height = height_;
    result.indices.assign(work_.size(), 0);
    int index = 0;
    for (int y = height_ - 1; y >= 0; --y) {
        for (int x = 0; x < width_; ++x) {
            const PackedColor c = work_[Cell(x, y)];
            if (c == TransparentColor) {
                index = Palette256Result::kBlackEntry;
            } else if (c == InverseColor) {
                index = Palette256Result::kWhiteEntry;
            } else {
                const int found = lookup.Find(c);
                if (found >= 0) index = found;
            }
            result.indices[Cell(x, y)] = static_cast<std::uint8_t>(index);
        }
    }

    result.palette = palette_;
    result.paletteLast = paletteLast_;
    result.distinctColors = distinctColors_;
    result.dithered = dithered_;
    return result;
}

Palette256Result CreatePalette256(const IconImage& image, int imageIndex, IProgressSink& progress) {
    progress.SetStatus(GetText(texts::ColorPalette256) + std::to_string(imageIndex));
    PaletteBuilder builder(image, &progress);
    builder.CountPaletteColors();
    // At most 254 colours (DistinctColors counts them minus one): keep them exactly.
    if (builder.DistinctColors() < 254) {
        builder.ExactPalette();
    } else {
        builder.DitherToPalette();
    }
    return builder.Finish();
}

Palette256Result CreatePalette256(const IconSet& set, int imageIndex, IProgressSink& progress) {
    return CreatePalette256(set.Image(imageIndex), imageIndex, progress);
}

}  // namespace iw
