#include "document/io/PngExport.h"

#include <string>
#include <system_error>

#include "document/io/PngEntryEncoder.h"
#include "services/core/AtomicFile.h"

namespace iw {

bool ExportImagePng(const IconImage& image, const std::filesystem::path& file,
                    bool replaceExisting) {
    std::error_code error;
    if (!replaceExisting && std::filesystem::exists(file, error)) return false;
    const std::vector<std::uint8_t> stream = EncodePngEntry(image);
    return !stream.empty() && WriteFileAtomically(file, std::as_bytes(std::span(stream)));
}

ExportResult ExportImagesPng(const IconSet& set, const std::filesystem::path& folder,
                             std::string_view prefix) {
    ExportResult result;
    for (int i = 0; i < set.Count(); ++i) {
        const std::filesystem::path file =
            folder / (std::string(prefix) + std::to_string(i) + ".png");
        if (!ExportImagePng(set.Image(i), file, true)) {
            result.failed = file;
            break;
        }
        ++result.written;
    }
    return result;
}

}  // namespace iw
