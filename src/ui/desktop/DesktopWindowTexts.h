#pragma once
// The captions of the desktop windows, one place each: the file types window (frmFileType),
// the folder icon wizard (frmFolder), the favicon wizard (frmFavicon) and their menu items.

#include <string_view>

#include "services/core/Texts.h"

namespace iw::ui::desktop_texts {

// The shared buttons.
inline constexpr TextId OK{"cmdOK", "Constants", "OK"};
inline constexpr TextId Cancel{"cmdCancel", "Constants", "Cancel"};
inline constexpr TextId Next{"cmdNext", "Constants", "&Next >"};
inline constexpr TextId Finish{"cmdFinish", "Constants", "Finish >"};

// Menu items (section "frmMain").
inline constexpr TextId MenuFolderIcon{"mnuFolderIcon", "frmMain", "Set Fol&der Icon..."};
inline constexpr TextId MenuFavicon{"mnuFavicon", "frmMain", "&Favicon Wizard..."};
inline constexpr TextId MenuFileTypes{"mnuFileTypes", "frmMain", "File &Types..."};

namespace file_type {
inline constexpr std::string_view kWindow = "frmFileType";
inline constexpr TextId Caption{"Caption", kWindow, "File Types"};
inline constexpr TextId Intro{"lblInfo", kWindow,
                              "Iconwright checks at start-up that it is still the default editor "
                              "of these file types, and offers to make it so again:"};
// The three boxes, in the order of the file types (icon, cursor, animated cursor).
inline constexpr TextId Boxes[] = {
    {"chkICO", kWindow, "&Icons (.ico)"},
    {"chkCUR", kWindow, "&Cursors (.cur)"},
    {"chkANI", kWindow, "&Animated cursors (.ani)"},
};
inline constexpr TextId NotRegistered{
    "NotRegistered", kWindow,
    "Iconwright could not be made the default editor of every checked file type."};
}  // namespace file_type

namespace folder {
inline constexpr std::string_view kWindow = "frmFolder";
inline constexpr TextId Caption{"Caption", kWindow, "Folder Icon Wizard"};
inline constexpr TextId Back{"cmdBack", kWindow, "< &Back"};
// Page 1: what to do.
inline constexpr TextId Welcome{"lblWelcome", kWindow,
                                "This wizard makes folder icons and puts them on folders."};
inline constexpr TextId Create{"optCreate", kWindow,
                               "&Create a folder icon: a folder with a picture laid over it"};
inline constexpr TextId Set{"optSet", kWindow, "&Set the icon of a folder"};
// Page 2: the folder and its icon.
inline constexpr TextId FolderLabel{"lblFolder", kWindow, "&Folder:"};
inline constexpr TextId CurrentLabel{"lblCurrent", kWindow, "Current icon:"};
inline constexpr TextId IconLabel{"lblIcon", kWindow, "&Icon file:"};
inline constexpr TextId IndexLabel{"lblIndex", kWindow, "Icon inde&x:"};
inline constexpr TextId Browse{"cmdBrowse", kWindow, "&Browse..."};
inline constexpr TextId Copy{"chkCopy", kWindow, "C&opy the icon into the folder"};
inline constexpr TextId IconFilter{"IconFilter", kWindow,
                                   "Icon Files (*.ico *.icl *.exe *.dll);;All Files (*)"};
inline constexpr TextId Done{"FolderIconSet", kWindow, "The folder icon has been set."};
inline constexpr TextId NotWritten{"FolderIconFailed", kWindow,
                                   "The folder icon could not be set."};
// Page 3: composing.
inline constexpr TextId PictureFrame{"fraPicture", kWindow, "Picture"};
inline constexpr TextId UseCurrent{"optCurrent", kWindow, "The icon being &edited"};
inline constexpr TextId UseFile{"optFile", kWindow, "A picture &file:"};
inline constexpr TextId PictureFilter{
    "PictureFilter", kWindow,
    "Pictures (*.png *.ico *.bmp *.gif *.jpg *.jpeg *.psd);;All Files (*)"};
inline constexpr TextId LayoutFrame{"fraLayout", kWindow, "Overlay"};
inline constexpr TextId OffsetX{"lblOffsetX", kWindow, "Offset &X (-48 to 48):"};
inline constexpr TextId OffsetY{"lblOffsetY", kWindow, "Offset &Y (-48 to 48):"};
inline constexpr TextId Angle{"lblAngle", kWindow, "&Angle (0 to 359):"};
inline constexpr TextId Density{"lblDensity", kWindow, "&Density (0 to 256):"};
inline constexpr TextId Mask{"chkMask", kWindow, "Leave out the &mask colour"};
inline constexpr TextId MaskColour{"cmdMaskColor", kWindow, "Colour..."};
inline constexpr TextId Preview{"fraPreview", kWindow, "Preview"};
inline constexpr TextId Formats{"lblFormats", kWindow,
                                "Made at 16 x 16, 32 x 32 and 48 x 48 in 16 colours, 256 colours "
                                "and alpha."};
}  // namespace folder

namespace favicon {
inline constexpr std::string_view kWindow = "frmFavicon";
inline constexpr TextId Caption{"Caption", kWindow, "Favicon Wizard"};
inline constexpr TextId Step1{"lblStep1", kWindow,
                              "Use this wizard after you have created the icon."};
inline constexpr TextId Step2{"lblStep2", kWindow, "Click Save to save the icon to your desktop."};
inline constexpr TextId Step3{"lblStep3", kWindow,
                              "Copy the icon to the root directory on your website."};
inline constexpr TextId Example{"lblExample", kWindow,
                                "For example: https://www.example.com/favicon.ico"};
inline constexpr TextId AddToPage{"lblAddIcon", kWindow, "Add icon to web page"};
inline constexpr TextId Code{"lblCode", kWindow,
                             "Add this code to your webpage in the <head> section:"};
inline constexpr TextId TouchIcons{
    "chkTouchIcons", kWindow,
    "Also save icons for phones and web apps (apple-touch-icon.png, icon-192.png, icon-512.png)"};
inline constexpr TextId Save{"cmdSave", kWindow, "Save"};
inline constexpr TextId Copy{"cmdCopy", kWindow, "Copy"};
inline constexpr TextId Close{"cmdClose", kWindow, "&Close"};
}  // namespace favicon

}  // namespace iw::ui::desktop_texts
