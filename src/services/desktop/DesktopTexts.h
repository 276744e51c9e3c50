#pragma once
// The texts of the templates and the other desktop services.

#include <array>

#include "services/core/TextCatalog.h"
#include "services/core/Texts.h"

namespace iw::texts {

inline constexpr TextId TemplatesFolderMissing{
    "TemplatesFolder", "Messages",
    "The Templates folder could not be found.  Please reinstall Iconwright."};
inline constexpr TextId TemplateLocked{"TemplateLocked", "Messages",
                                       "This template cannot be edited."};
inline constexpr TextId TemplateName{
    "TemplateName", "Messages",
    "Please enter a name for the template.  A name cannot contain any of the characters "
    "\\ / : * ? \" < > |"};
inline constexpr TextId DeleteTemplate{"DeleteTemplate", "Messages",
                                       "Delete the template \"%f\"?  This cannot be undone."};

// The colour depths as the template editor shows them, in the order of the old-style
// colour indexes 0..4.
inline constexpr std::array<TextId, 5> kDepthNames = {{
    {"Monochrome", "Constants", "Monochrome"},
    {"16 Colors", "Constants", "16 Colors"},
    Colors256,
    {"True Color", "Constants", "True Color"},
    Alpha,
}};
// What the folder icon wizard shows for a folder that has no icon.
inline constexpr TextId NoFolderIcon{"NoIcon", "frmFolder", "[no icon]"};

inline constexpr TextId CompressedNo{"No", "Constants", "No"};
inline constexpr TextId CompressedYes{"Yes", "Constants", "Yes"};

}  // namespace iw::texts
