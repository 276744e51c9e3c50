#include "document/io/BitmapDecoder.h"
#include "document/io/IcoLayout.h"
#include "document/io/IconReaderSteps.h"
#include "services/core/CheckedBytes.h"

namespace iw::detail {

// The tests are made on exactly these bytes, in this order, so that the scan finds the same
// headers in any file (icons inside executables and resource files among them).
bool IsBitmapHeaderAt(std::span<const std::uint8_t> FileBytes, std::size_t p) {
    if (FileBytes.size() <= ico::kBitmapHeaderSize ||
        p >= FileBytes.size() - ico::kBitmapHeaderSize) {
        return false;
    }
    const std::uint8_t* h = FileBytes.data() + p;
    if (h[0] != ico::kBitmapHeaderSize) return false;
    const std::uint32_t width = LoadLE32(h + ico::kBmpWidth);
    const std::uint32_t storedHeight = LoadLE32(h + ico::kBmpHeight);
    // Width above 0 and below 257; the halved height (taken exactly, 0.5 included) too.
    if (width == 0 || width >= 257) return false;
    if (storedHeight == 0 || storedHeight >= 514) return false;
    if (h[ico::kBmpPlanes] != 1) return false;
    if (!ico::IsSupportedBitCount(h[ico::kBmpBitCount])) return false;
    return h[1] == 0 && h[16] == 0 && h[18] == 0 && h[24] == 0;
}

IconReadStatus FindBitmapHeaders(std::span<const std::uint8_t> FileBytes, IconSet& set,
                                 EntryTable& entries) {
    if (FileBytes.size() <= ico::kBitmapHeaderSize) return IconReadStatus::NoBitmapHeaders;
    const std::size_t end = FileBytes.size() - ico::kBitmapHeaderSize;
    for (std::size_t p = 0; p < end && !set.Full(); ++p) {
        if (FileBytes[p] != ico::kBitmapHeaderSize || !IsBitmapHeaderAt(FileBytes, p)) continue;
        const std::uint8_t* h = FileBytes.data() + p;
        const int width = static_cast<int>(LoadLE32(h + ico::kBmpWidth));
        // A stored height of 1 halves to 0.5, which passes the test above but holds no
        // row; such an image keeps one row.
        int height = HalvedBitmapHeight(LoadLE32(h + ico::kBmpHeight));
        if (height < 1) height = 1;
        set.AddIcon(height - 1, width - 1, h[ico::kBmpBitCount]);
        entries.Add(p, FileBytes.size() - p);
    }
    return set.Empty() ? IconReadStatus::NoBitmapHeaders : IconReadStatus::Ok;
}

}  // namespace iw::detail
