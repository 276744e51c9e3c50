#pragma once
// The captions and messages of the picture commands (menus under "frmMain", dialogs under
// "Constants", messages under "Messages").

#include "services/core/Texts.h"

namespace iw::ui::picture_texts {

inline constexpr TextId ImportExport{"mnuImportExport", "frmMain", "I&mport and Export"};
inline constexpr TextId ImportImage{"mnuImportImage", "frmMain", "&Import Image..."};
inline constexpr TextId ExportImage{"mnuExportImage", "frmMain", "&Export Image..."};
inline constexpr TextId ExportAll{"mnuExportAll", "frmMain", "Export &All Images..."};
inline constexpr TextId Preview{"mnuPreview", "frmMain", "&Preview..."};
inline constexpr TextId Convert{"mnuConvert", "frmMain", "Con&vert an Image..."};

inline constexpr TextId ExportTitle{"ExportImage", "Constants", "Export Image"};
inline constexpr TextId ExportFolderTitle{"ExportAllImages", "Constants", "Export All Images"};
inline constexpr TextId PngFilter{"SavePNGFilter", "Constants", "PNG Images (*.png)|*.png"};

inline constexpr TextId ExportFailed{"ExportFailed", "Messages",
                                     "The picture could not be written to %f."};

// The conversion wizard, frmConvert.
namespace convert {
inline constexpr std::string_view kWindow = "frmConvert";
inline constexpr TextId Caption{"Caption", kWindow, "Convert an Image"};
inline constexpr TextId PictureStep{
    "lblPicture", kWindow,
    "Choose the picture to make an icon from: a bitmap, GIF, JPEG, PNG, icon or Photoshop "
    "file."};
inline constexpr TextId Browse{"cmdBrowse", kWindow, "&Browse..."};
inline constexpr TextId TemplateStep{
    "lblTemplate", kWindow,
    "Choose a template. The new icon gets one image for each of its formats, each resized "
    "from the picture."};
inline constexpr TextId SizeColumn{"colSize", kWindow, "Size"};
inline constexpr TextId DepthColumn{"colColors", kWindow, "Colors"};
inline constexpr TextId CompressedColumn{"colCompressed", kWindow, "Compressed"};
inline constexpr TextId Back{"cmdBack", kWindow, "< &Back"};
}  // namespace convert

}  // namespace iw::ui::picture_texts
