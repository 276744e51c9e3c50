#pragma once
// Opening a picture (PNG, icon, Photoshop, and through the lent decoder BMP, GIF, JPEG) as
// straight RGBA, for the import into an image and for "Convert an Image".

#include <cstdint>
#include <filesystem>
#include <span>

#include "codec/png/DecodeLimits.h"
#include "document/io/PictureDecoder.h"
#include "imaging/RgbaBuffer.h"
#include "services/core/MessageService.h"

namespace iw {

enum class PictureLoadStatus {
    Ok,
    Declined,     // the user chose not to read a Photoshop file in another colour model
    Unreadable,   // the file could not be read
    Unsupported,  // not a picture format that is read (or no decoder lent for it)
    Corrupt,
    TooLarge,  // beyond the limits (file or picture)
};

struct PictureLoadOptions {
    DecodeLimits limits = PictureLimits();
    std::uint64_t maxFileBytes = std::uint64_t{512} << 20;
    IPictureDecoder* decoder = nullptr;  // for the formats the core does not read itself
    // False: a failure other than a Photoshop one is returned without a message, for a
    // caller that words it itself.
    bool reportFailure = true;
};

// Decodes a picture in memory. A Photoshop file in a colour model other than RGB asks
// "PSDBadColor" (Yes: read it as well as its channels allow; No: Declined); one that cannot
// be read shows "UnableOpenPSD". Other failures are returned without a message. An icon
// gives its largest image, the deepest of those of that size.
PictureLoadStatus DecodePicture(std::span<const std::uint8_t> bytes,
                                const PictureLoadOptions& options, MessageService& messages,
                                RgbaBuffer& picture);

// Reads `file` whole and decodes it. Photoshop files are reported as above; any other
// failure shows "CorruptFile" followed by the path (unless options.reportFailure is off).
PictureLoadStatus LoadPictureFile(const std::filesystem::path& file,
                                  const PictureLoadOptions& options, MessageService& messages,
                                  RgbaBuffer& picture);

}  // namespace iw
