#pragma once
// The system's texts, each defined once with its key, section and English default.
// Texts that end in a blank are completed by the caller (usually with a number).

#include "services/core/Texts.h"

namespace iw::texts {

inline constexpr std::string_view kProgramTitle = "Quorvale Iconwright";

// Section "Messages": one key per message box.
inline constexpr TextId CorruptFile{
    "CorruptFile", "Messages",
    "Iconwright cannot read this file.  This file is corrupt, or it's format is currently not "
    "supported."};
inline constexpr TextId RenamedPicture{
    "RenamedPicture", "Messages",
    "Iconwright cannot read this file.  This file is a renamed picture file.  Use the Convert an "
    "Image feature, or click File->Import and Export->Import Image."};
inline constexpr TextId ScreenColors{
    "ScreenColors", "Messages",
    "Editing icons at low screen colors will produce adverse effects.  It is reccomended that you "
    "change your screen color to 24 bit or above.  Continue?"};
inline constexpr TextId ICOFileType{
    "ICOFileType", "Messages",
    "Iconwright is currently not your default editor for icons.  Would you like to make it the "
    "default editor?"};
inline constexpr TextId CURFileType{
    "CURFileType", "Messages",
    "Iconwright is currently not your default editor for cursors.  Would you like to make it the "
    "default editor?"};
inline constexpr TextId ANIFileType{
    "ANIFileType", "Messages",
    "Iconwright is currently not your default editor for animated cursors.  Would you like to make "
    "it the default editor?"};
inline constexpr TextId ImportPicture{
    "ImportPicture", "Messages",
    "You are importing a very large image.  It is reccomended that you import pictures less than "
    "500 x 500.  Continue?"};
inline constexpr TextId SaveFilename{"SaveFilename", "Messages", "Save changes to %f?"};
inline constexpr TextId SaveUntitled{"SaveUntitled", "Messages", "Save changes to untitled?"};
inline constexpr TextId OverwriteFile{"OverwriteFile", "Messages",
                                      "The file %f already exists.  OK to overwrite?"};
// Asked before a picture is saved over an existing file, under its own title.
inline constexpr TextId OverwriteConfirmation{"OverwriteConfirmation", "Messages",
                                              "Overwrite existing file?"};
inline constexpr TextId PSDBadColor{
    "PSDBadColor", "Messages",
    "This Photoshop file has a color model other than RGB.  Iconwright only supports Photoshop "
    "files with the RGB color model.  Do you want to attempt to import this file?"};
inline constexpr TextId UnableOpenPSD{
    "UnableOpenPSD", "Messages",
    "Iconwright cannot read this file.  This is not a valid Adobe Photoshop file, or it's format "
    "is currently not supported."};
inline constexpr TextId Integer500{"Integer500", "Messages",
                                   "Please enter an integer between 1 and 500"};
// "Integer256" has two defaults, one per call site, deliberately.
inline constexpr TextId Integer256From1{"Integer256", "Messages",
                                        "Please enter an integer between 1 and 256."};
inline constexpr TextId Integer256From0{"Integer256", "Messages",
                                        "Please enter an integer between 0 and 256."};
inline constexpr TextId Integer48{"Integer48", "Messages",
                                  "Please enter an integer between -48 and 48."};
inline constexpr TextId Integer359{"Integer359", "Messages",
                                   "Please enter an integer between 0 and 359."};
inline constexpr TextId AddDuplicateIcon{
    "AddDuplicateIcon", "Messages",
    "You current icon file already contains this format and size icon.  Are you sure you want to "
    "continue adding it?"};
inline constexpr TextId IconLimit{"IconLimit", "Messages", "You cannot add anymore icons."};
inline constexpr TextId ChangeAttributes{
    "ChangeAttributes", "Messages",
    "Are you sure you want to adjust this icon?  This action cannot be undone."};
inline constexpr TextId AttributesANI{
    "AttributesANI", "Messages",
    "You are changing the attributes of an animated cursor.  Please note that this will effect "
    "all frames."};
inline constexpr TextId PastePicture{
    "PastePicture", "Messages",
    "You are pasting a very large picture into Iconwright.  It is reccomended that you paste "
    "images less than 300 x 300.  Continue?"};
inline constexpr TextId SeqFrame{"SeqFrame", "Messages",
                                 "You must have more than one frame to set sequence information."};
inline constexpr TextId CreateFolderIcon{
    "CreateFolderIcon", "Messages",
    "You've just created a folder icon.  After your done making changes, save your icon and then "
    "click File->Set Folder Icon to use your folder icon."};
inline constexpr TextId SelectFolderMessage{"SelectFolder", "Messages", "Please select a folder."};
inline constexpr TextId SelectIcon{"SelectIcon", "Messages", "Please select a valid icon."};
inline constexpr TextId UpdateText{
    "UpdateText", "Messages",
    "It's been %d days since you checked for an update. Would you like to check for an update "
    "now?"};
inline constexpr TextId CreateANI{
    "CreateANI", "Messages",
    "You've just created an Animated Cursor.  You can have custom sequence, name and author "
    "information.  To learn more click Help->Help Topics."};
inline constexpr TextId CreateCursor{
    "CreateCursor", "Messages",
    "You've just created a Cursor.  To set the hotspot, click Set Hotspot on the main toolbar.  To "
    "learn more, click Help->Help Topics."};
inline constexpr TextId OpenEXE{
    "OpenEXE", "Messages",
    "You are opening a file other than an icon file.  Although Iconwright can read these files, it "
    "will be saved as an icon file.  Continue?"};
inline constexpr TextId SeqANI{
    "SeqANI", "Messages",
    "This animated cursor contains frame sequence information.  You may change or remove this by "
    "clicking Sequence Editor on the main toolbar."};
inline constexpr TextId ANIInfo{
    "ANIInfo", "Messages",
    "This animated cursor contains name/artist information.  You may change or remove this "
    "information by clicking File->Properties."};
inline constexpr TextId DoesNotExist{"DoesNotExist", "Messages", "This file could not be found."};
inline constexpr TextId Bad16Icons{
    "Bad16Icons", "Messages",
    "Some of the 16 color icons in this file have a non-standard palette.  These have been "
    "converted to 256 color icons as this may cause compatibilty problems."};

// Section "Constants": shared words, phrases and status texts.
inline constexpr TextId Colors256{"256 Colors", "Constants", "256 Colors"};
inline constexpr TextId ColorPalette256{"256ColorPalette", "Constants",
                                        "Creating color palette for 256 color icon "};
inline constexpr TextId ANIProperties{"ANIProperties", "Constants", "Animated Cursor Properties"};
inline constexpr TextId AddingDropshadow{"AddingDropshadow", "Constants", "Adding Dropshadow..."};
inline constexpr TextId AddingPrimaryHeader{"AddingPrimaryHeader", "Constants",
                                            "Adding primary icon header for icon "};
inline constexpr TextId AddingSecondHeader{"AddingSecondHeader", "Constants",
                                           "Adding secondary icon header for icon "};
inline constexpr TextId Alpha{"Alpha", "Constants", "Alpha"};
inline constexpr TextId Colorizing{"Colorizing", "Constants", "Colorizing Icon..."};
inline constexpr TextId ConvertingGreyscale{"ConvertingGreyscale", "Constants",
                                            "Converting to Greyscale..."};
inline constexpr TextId CursorMenu{"CursorMenu", "Constants", "&Cursor"};
inline constexpr TextId GettingIconInformation{"GettingIconInformation", "Constants",
                                               "Getting Icon Information"};
inline constexpr TextId IconMenu{"IconMenu", "Constants", "&Icon"};
inline constexpr TextId ImportImage{"ImportImage", "Constants", "Import Image"};
inline constexpr TextId ImportingImage{"ImportingImage", "Constants", "Importing Image..."};
inline constexpr TextId Jiffies{"Jiffies", "Constants", "jiffies"};
inline constexpr TextId LoadingIcon{"LoadingIcon", "Constants", "Loading icon"};
inline constexpr TextId Of{"Of", "Constants", "of"};
inline constexpr TextId OverwriteConfirmationTitle{"OverwriteConfirmation", "Constants",
                                                   "Overwrite Confirmation"};
inline constexpr TextId OpenIconFilter{"OpenIconFilter", "Constants", "Icon Files (*.ico)|*.ico"};
inline constexpr TextId OpenFileFilterIcon{"OpenFileFilterIcon", "Constants",
                                           "Icon Files (*.ico)|*.ico"};
// The entry for icon files lists "*.psd"; it is kept as it stands.
inline constexpr TextId OpenImageFilter{
    "OpenImageFilter", "Constants",
    "All Supported Formats (*.bmp, *.gif, *.jpg, *.png, *.ico, "
    "*.psd)|*.bmp;*.gif;*.jpg;*.jpeg;*.png;"
    "*.ico;*.psd|Bitmap Images (*.bmp)|*.bmp|GIF Images (*.gif)|*.gif|JPEG Images (*.jpg,*.jpeg)|"
    "*.jpg;*.jpeg|PNG Images (*.png)|*.png|Icon Files (*.ico)|*.psd|Adobe Photoshop Images "
    "(*.psd)|*.psd"};
inline constexpr TextId PickColor{"PickColor", "Constants", "Pick Color"};
inline constexpr TextId Pixels{"Pixels", "Constants", "pixels"};
inline constexpr TextId PreviewANI{"PreviewANI", "Constants", "Preview Animated Cursor"};
inline constexpr TextId RecentList{"RecentList", "Constants", "Recent List"};
inline constexpr TextId RemoveIcon{"RemoveIcon", "Constants", "Remove Icon"};
inline constexpr TextId ResizingSelection{"ResizingSelection", "Constants",
                                          "Resizing Selection..."};
inline constexpr TextId Seconds{"Seconds", "Constants", "seconds"};
inline constexpr TextId SelectFolder{"SelectFolder", "Constants", "Please select a folder."};
inline constexpr TextId SelectFont{"SelectFont", "Constants", "Select Font"};
inline constexpr TextId SetIcon{"SetIcon", "Constants", "Set Icon"};
inline constexpr TextId Sharpen{"Sharpen", "Constants", "Sharpening..."};
inline constexpr TextId Smooth{"Smooth", "Constants", "Smoothing Alpha..."};
inline constexpr TextId Untitled{"Untitled", "Constants", "untitled"};

}  // namespace iw::texts
