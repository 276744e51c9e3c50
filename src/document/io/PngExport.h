#pragma once
// Export and Import: images of the set written as PNG pictures.

#include <filesystem>
#include <string_view>

#include "document/model/IconSet.h"

namespace iw {

// Writes `image` as it shows as a PNG file (a PNG-compressed entry read from a file and
// not changed since is written with its own stream). An existing file is replaced only
// when `replaceExisting` says so: the window asks "Overwrite existing file?" first
// (ConfirmOverwrite). The file is written beside and renamed over, so a failure keeps it.
bool ExportImagePng(const IconImage& image, const std::filesystem::path& file,
                    bool replaceExisting);

struct ExportResult {
    int written = 0;
    std::filesystem::path failed;  // the file that could not be written, if any
    bool Ok() const { return failed.empty(); }
};

// Every image of the set as folder / (prefix + index + ".png"), index counted from 0,
// replacing files of those names. Stops at the first file that cannot be written.
ExportResult ExportImagesPng(const IconSet& set, const std::filesystem::path& folder,
                             std::string_view prefix = {});

}  // namespace iw
