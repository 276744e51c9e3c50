#pragma once
// The warning given after start-up when no compression library could be loaded: the
// program goes on with its own inflate and a lower compression for writing.

#include "services/core/MessageService.h"

namespace iw::texts {
inline constexpr TextId ZlibMissing{
    "ZlibMissing", "Messages",
    "A required file, zlib1.dll, is missing.  This file is needed in order to work with "
    "compressed icons efficiently.  Iconwright will continue, however, compressed icons created "
    "will not have as high a compression ratio."};
inline constexpr TextId ZlibReinstall{"ZlibReinstall", "Messages", "Please reinstall Iconwright."};
}  // namespace iw::texts

namespace iw {

// Shows the critical message when `zlibLoaded` is false (the window passes IsZlibLoaded()).
// Returns whether it was shown.
bool ReportMissingCompressionLibrary(MessageService& messages, bool zlibLoaded);

}  // namespace iw
