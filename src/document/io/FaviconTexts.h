#pragma once
// The texts of the favicon wizard (frmFavicon) that the saving uses, and the page markup
// the wizard offers.

#include <string_view>

#include "services/core/Texts.h"

namespace iw::texts {

inline constexpr TextId FaviconExists{"FaviconExists", "frmFavicon",
                                      "This file already exists.  Would you like to overwrite it?"};
inline constexpr TextId FaviconNotSaved{"FaviconNotSaved", "frmFavicon",
                                        "Your icon was not saved."};
inline constexpr TextId FaviconSaved{"FaviconSaved", "frmFavicon",
                                     "Your icon has been saved as 'favicon.ico' on your Desktop."};

// txtCode: the line that refers to the favicon from a page's <head>.
inline constexpr std::string_view kFaviconMarkup =
    "<link rel=\"shortcut icon\" href=\"/favicon.ico\"/>";

}  // namespace iw::texts
