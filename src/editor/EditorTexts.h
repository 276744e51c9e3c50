#pragma once
// The editor's own texts, each with its key, section and English default. The shared ones
// live in services/core/TextCatalog.h.

#include <array>

#include "services/core/Texts.h"

namespace iw::texts {

inline constexpr std::string_view kCaptionSuffix = " - Quorvale Iconwright";

inline constexpr TextId ExtraFormats{
    "ExtraFormats", "Messages",
    "You are about to delete icons from your file.  This action cannot be undone.  Continue?"};
inline constexpr TextId InvalidCommand{"InvalidCommand", "Messages",
                                       "This file cannot be found or the command is invalid."};
inline constexpr TextId EditingFor{"EditingFor", "Messages", "You are editing an icon for "};

// The status bar's words for the pixel under the mouse.
inline constexpr TextId TransparentPixel{"Transparent", "Constants", "Transparent"};
inline constexpr TextId InvertedPixel{"Inverted", "Constants", "Inverted"};

// The names of the sixteen standard colours, in the palette's order.
inline constexpr std::array<TextId, 16> kStandardColorNames = {{
    {"Black", "Constants", "Black"},
    {"Maroon", "Constants", "Maroon"},
    {"Green", "Constants", "Green"},
    {"Olive", "Constants", "Olive"},
    {"Navy", "Constants", "Navy"},
    {"Purple", "Constants", "Purple"},
    {"Teal", "Constants", "Teal"},
    {"Silver", "Constants", "Silver"},
    {"Gray", "Constants", "Gray"},
    {"Red", "Constants", "Red"},
    {"Lime", "Constants", "Lime"},
    {"Yellow", "Constants", "Yellow"},
    {"Blue", "Constants", "Blue"},
    {"Fuchsia", "Constants", "Fuchsia"},
    {"Aqua", "Constants", "Aqua"},
    {"White", "Constants", "White"},
}};

// The inspector panel: one text per state, and the fix button's captions.
inline constexpr TextId InspectorOk{
    "InspectorOK", "frmMain",
    "Your icon contains all required formats and is in the correct order."};
inline constexpr TextId InspectorCustomOk{"InspectorCustomOK", "frmMain",
                                          "Your custom icon is in the correct order."};
inline constexpr TextId InspectorMissing{"InspectorMissing", "frmMain",
                                         "Your icon is missing required formats."};
inline constexpr TextId InspectorUnsorted{"InspectorUnsorted", "frmMain",
                                          "Your icon is not sorted correctly."};
inline constexpr TextId InspectorAllBlank{"InspectorAllBlank", "frmMain",
                                          "All your icons are blank."};
inline constexpr TextId InspectorSomeBlank{"InspectorSomeBlank", "frmMain",
                                           "Some icons are blank."};
inline constexpr TextId InspectorUnneeded{"InspectorUnneeded", "frmMain",
                                          "Your icon contains unneeded formats."};
inline constexpr TextId InspectorDuplicates{"InspectorDuplicates", "frmMain",
                                            "Your icon contains duplicate formats."};
inline constexpr TextId FixFix{"cmdFix", "frmMain", "Fix"};
inline constexpr TextId FixAddIcons{"FixAddIcons", "frmMain", "Add Icons"};
inline constexpr TextId FixSortIcons{"FixSortIcons", "frmMain", "Sort Icons"};
inline constexpr TextId FixCopyImage{"FixCopyImage", "frmMain", "Copy Image"};
inline constexpr TextId FixRemove{"FixRemove", "frmMain", "Remove"};
inline constexpr TextId FixShow{"FixShow", "frmMain", "Show"};

}  // namespace iw::texts
