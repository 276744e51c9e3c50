#include <algorithm>
#include <string>

#include "document/io/BitmapDecoder.h"
#include "document/io/IcoLayout.h"
#include "document/io/IconReaderSteps.h"
#include "document/io/PngEntryDecoder.h"
#include "services/core/CheckedBytes.h"
#include "services/core/TextCatalog.h"

namespace iw::detail {
namespace {

std::string LoadingStatus(int number, int total) {
    return GetText(texts::LoadingIcon) + " " + std::to_string(number) + " " + GetText(texts::Of) +
           " " + std::to_string(total) + ".";
}

// False when the image could not be decoded.
bool DecodeImage(std::span<const std::uint8_t> FileBytes, std::uint64_t EntryOffset,
                 std::uint64_t EntrySize, IconImage& image) {
    if (EntryOffset >= FileBytes.size()) return false;  // nothing of it is in the file
    const std::size_t offset = static_cast<std::size_t>(EntryOffset);
    if (FileBytes[offset] == ico::kBitmapHeaderSize) {
        return DecodeBitmapEntry(FileBytes, offset, image);
    }
    image.info.png = 1;
    // The PNG stream may not run past the file, whatever the directory claims.
    const std::size_t size =
        static_cast<std::size_t>(std::min<std::uint64_t>(EntrySize, FileBytes.size() - offset));
    return AttachPngEntry(FileBytes.subspan(offset, size), image);
}

}  // namespace

void DecodeImages(std::span<const std::uint8_t> FileBytes, const EntryTable& entries, IconSet& set,
                  IProgressSink& progress) {
    const int total = set.Count();
    for (int i = 0; i < total; ++i) {
        progress.SetStatus(LoadingStatus(i + 1, total));
        progress.SetProgress(i, total);
        progress.Yield();
        const auto at = static_cast<std::size_t>(i);
        IconImage& image = set.Image(i);
        if (!DecodeImage(FileBytes, entries.EntryOffset[at], entries.EntrySize[at], image)) {
            // Blank, and at a depth every writer can write whatever the directory said.
            image.info.bitCount = 32;
        }
    }
    progress.SetProgress(total, total);
}

}  // namespace iw::detail
