#pragma once
// The favicon: "favicon.ico" for a web site's root folder, the markup that refers to it,
// and, for today's browsers and phones, larger PNG icons beside it.

#include <array>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "document/model/IconSet.h"
#include "imaging/RgbaBuffer.h"
#include "services/core/CoreContext.h"

namespace iw {

inline constexpr std::string_view kFaviconFileName = "favicon.ico";
// The sides of the images a favicon made from a picture or an icon holds, at 32 bits.
inline constexpr std::array<int, 3> kFaviconSides = {16, 32, 48};

// PNG icons for phones' home screens and web app manifests.
struct TouchIcon {
    std::string_view file;
    int side;
    std::string_view markup;
};
inline constexpr std::array<TouchIcon, 3> kTouchIcons = {{
    {"apple-touch-icon.png", 180, "<link rel=\"apple-touch-icon\" href=\"/apple-touch-icon.png\">"},
    {"icon-192.png", 192,
     "<link rel=\"icon\" type=\"image/png\" sizes=\"192x192\" href=\"/icon-192.png\">"},
    {"icon-512.png", 512,
     "<link rel=\"icon\" type=\"image/png\" sizes=\"512x512\" href=\"/icon-512.png\">"},
}};

// The markup for a page's <head>: the favicon line, and with `touchIcons` one line for each
// PNG icon, one line a piece.
std::string FaviconMarkup(bool touchIcons);

// The files a favicon writes into `folder`.
std::vector<std::filesystem::path> FaviconFiles(const std::filesystem::path& folder,
                                                bool touchIcons);

// The pixels of the set's largest image (the deepest of that size); empty for an empty set.
RgbaBuffer LargestImagePixels(const IconSet& set);

// A favicon set of 16, 32 and 48 px images at 32 bits. From an icon set: a size the set
// already has (square) is kept as it is (the deepest image of that size; one below 32 bits
// is carried over with the same look), the others are resampled from its largest image.
// From a picture: every size resampled from it, fitted and centred on transparent pixels.
void BuildFaviconSet(const IconSet& source, IconSet& favicon);
void BuildFaviconSet(const RgbaBuffer& picture, IconSet& favicon);

// Writes the touch icons into `folder`, resampled from `source` to fit (centred on
// transparent pixels). An existing file is replaced only when `replace` says yes for it.
// False when a file could not be written.
bool WriteTouchIcons(const RgbaBuffer& source, const std::filesystem::path& folder,
                     const std::function<bool(const std::filesystem::path&)>& replace);

enum class FaviconSaveResult { Saved, Cancelled, Failed };

// The favicon wizard's Save (cmdSave): writes `set` as folder / "favicon.ico" with the icon
// writer. An existing file is replaced only after a Yes to its path, a line break and "This
// file already exists.  Would you like to overwrite it?" (exclamation; always asked). Then
// "Your icon was not saved." (critical) or "Your icon has been saved as 'favicon.ico' on
// your Desktop." (information). With `touchIcons` the PNG icons are written beside it from
// the set's largest image, each existing one replaced after "Overwrite existing file?".
FaviconSaveResult SaveFavicon(const std::filesystem::path& folder, const IconSet& set,
                              bool touchIcons, CoreContext& context);

}  // namespace iw
