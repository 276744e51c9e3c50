#pragma once
// Every caption of the main window (section "frmMain"), in one place: menus, tool bars,
// panels and tool tips. The keys are the controls' names.

#include <array>

#include "services/core/Texts.h"

namespace iw::ui::main_texts {

constexpr std::string_view kWindow = "frmMain";

constexpr TextId T(std::string_view key, std::string_view text) {
    return {key, kWindow, text};
}

// Menus.
inline constexpr TextId File = T("mnuFile", "&File");
inline constexpr TextId New = T("mnuNew", "&New");
inline constexpr TextId Open = T("mnuOpen", "&Open...");
inline constexpr TextId Close = T("mnuClose", "&Close");
inline constexpr TextId Save = T("mnuSave", "&Save");
inline constexpr TextId SaveAs = T("mnuSaveAs", "Save &As...");
inline constexpr TextId Exit = T("mnuExit", "E&xit");
inline constexpr TextId Edit = T("mnuEdit", "&Edit");
inline constexpr TextId Undo = T("mnuUndo", "&Undo");
inline constexpr TextId Repeat = T("mnuRepeat", "&Repeat");
inline constexpr TextId View = T("mnuView", "&View");
inline constexpr TextId ZoomIn = T("mnuZoomIn", "Zoom &In");
inline constexpr TextId ZoomOut = T("mnuZoomOut", "Zoom &Out");
inline constexpr TextId NormalZoom = T("mnuNormalZoom", "&Normal Zoom");
inline constexpr TextId Auto = T("mnuAuto", "&Fit in Window");
inline constexpr TextId Grid = T("mnuGrid", "&Grid");
inline constexpr TextId PreviewBackground = T("mnuPreviewBackground", "&Preview Background");
inline constexpr TextId PreviewGrid = T("mnuPreviewGrid", "&Checkerboard");
inline constexpr TextId PreviewWhite = T("mnuPreviewWhite", "&White");
inline constexpr TextId PreviewTransparent = T("mnuPreviewTransparent", "&Transparent");
inline constexpr TextId Inspector = T("mnuInspector", "Icon &Inspector");
inline constexpr TextId ModeICO = T("mnuICO", "&Icon (.ico)");
inline constexpr TextId ModeCUR = T("mnuCUR", "&Cursor (.cur)");
inline constexpr TextId ModeANI = T("mnuANI", "&Animated Cursor (.ani)");
inline constexpr TextId CheckIcon = T("mnuCheckIcon", "C&heck Icon");
inline constexpr TextId Image = T("mnuImage", "I&mage");
inline constexpr TextId Tools = T("mnuTools", "&Tools");
inline constexpr TextId Help = T("mnuHelp", "&Help");
inline constexpr TextId HelpTopics = T("mnuHelpTopics", "&Help Topics");
inline constexpr TextId About = T("mnuAbout", "&About Iconwright");

// Panels and controls.
inline constexpr TextId MainToolBar = T("tbrMain", "Main");
inline constexpr TextId ToolsCaption = T("tbrTools", "Tools");
inline constexpr TextId PreviewCaption = T("fraPreview", "Preview");
inline constexpr TextId IconsCaption = T("fraIcons", "Images");
inline constexpr TextId InspectorCaption = T("fraInspector", "Icon Inspector");
inline constexpr TextId ForeColor = T("picForeColor", "Foreground colour (click to choose)");
inline constexpr TextId BackColor = T("picBackcolor", "Background colour (click to choose)");
inline constexpr TextId SwitchColors = T("picSwitchColors", "Switch colours");
inline constexpr TextId Red = T("lblRed", "R");
inline constexpr TextId Green = T("lblGreen", "G");
inline constexpr TextId Blue = T("lblBlue", "B");
inline constexpr TextId Alpha = T("lblAlpha", "A");
inline constexpr TextId ChooseFore = T("dlgForeColor", "Foreground Colour");
inline constexpr TextId ChooseBack = T("dlgBackColor", "Background Colour");
inline constexpr TextId ZoomText = T("lblZoom", "Zoom %d:1");
inline constexpr TextId EditRequestHint =
    T("lblEditRequestHint", "When you are done, save the icon and close Iconwright to return.");
inline constexpr TextId DroppedSeveral =
    T("DroppedSeveral", "Several files were dropped; the first one was opened.");

// The option buttons' tool tips.
inline constexpr TextId Opaque = T("picOpaque", "Opaque: the selection covers the image");
inline constexpr TextId Transparent =
    T("picTransparent", "Transparent: the image shows through the selection's clear pixels");
inline constexpr TextId ShapeFill = T("picShpFill", "Filled");
inline constexpr TextId ShapeNoFill = T("picShpNoFill", "Outline only");
inline constexpr TextId GradientUp = T("picGUp", "Top to bottom");
inline constexpr TextId GradientSide = T("picGSide", "Left to right");
inline constexpr TextId GradientDiagonal = T("picGDiag", "Corner to corner");
inline constexpr TextId GradientCenter = T("picGCenter", "Centre outwards");
inline constexpr std::array<TextId, 6> kBrushTips = {{
    T("picPenSSquare", "Small square"),
    T("picPenMSquare", "Medium square"),
    T("picPenLSquare", "Large square"),
    T("picPenSCircle", "Small circle"),
    T("picPenMCircle", "Medium circle"),
    T("picPenLCircle", "Large circle"),
}};
inline constexpr TextId LineTip = T("picLine", "Line width %d");
inline constexpr TextId SprayTip = T("picSpray", "Spray radius %d");

}  // namespace iw::ui::main_texts
