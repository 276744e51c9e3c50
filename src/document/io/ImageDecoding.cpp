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

void DecodeImage(std::span<const std::uint8_t> file, const EntryLocation& where, IconImage& image) {
    if (where.offset >= file.size()) return;  // nothing of it is in the file: stays blank
    const std::size_t offset = static_cast<std::size_t>(where.offset);
    if (file[offset] == ico::kBitmapHeaderSize) {
        DecodeBitmapEntry(file, offset, image);
        return;
    }
    image.info.png = 1;
    // The PNG stream may not run past the file, whatever the directory claims.
    const std::size_t size =
        static_cast<std::size_t>(std::min<std::uint64_t>(where.size, file.size() - offset));
    DecodePngEntry(file.subspan(offset, size), image);
}

}  // namespace

void DecodeImages(std::span<const std::uint8_t> file, const EntryOffsets& offsets, IconSet& set,
                  IProgressSink& progress) {
    const int total = set.Count();
    for (int i = 0; i < total; ++i) {
        progress.SetStatus(LoadingStatus(i + 1, total));
        progress.SetProgress(i, total);
        progress.Yield();
        DecodeImage(file, offsets[static_cast<std::size_t>(i)], set.Image(i));
    }
    progress.SetProgress(total, total);
}

}  // namespace iw::detail
