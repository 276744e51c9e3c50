#pragma once
// The main window's settings in the settings store ("Settings\<key>"), with their defaults.
// Every value is read as untrusted text: a value that cannot be used gives the default.

#include <string>

#include "editor/Zoom.h"
#include "services/core/XmlStore.h"

namespace iw {

enum class PreviewBackground : int { Grid = 0, White = 1, Transparent = 2 };

// What a window's menus and layout show besides the editor state.
struct WindowSettings {
    static constexpr int kMaximised = 2;
    static constexpr int kDefaultTwips = 8000;

    int windowState = kMaximised;  // "Settings\State": 2 maximised, anything else restored
    int widthTwips = kDefaultTwips;
    int heightTwips = kDefaultTwips;
    PreviewBackground previewBackground = PreviewBackground::Grid;
    bool showInspector = true;
    // Whether the window's texts use "Segoe UI". Off unless chosen: the desktop's own font
    // is the right one wherever that font is not installed.
    bool useFont = false;
    bool splash = true;
    int startup = 0;    // 1 open the most recent file, 2 new blank icon, other values neither
    int blankIcon = 0;  // the kind of blank icon for start-up action 2 (see BlankIconFormat)

    bool Maximised() const { return windowState == kMaximised; }
};

// "Settings\Pixelsize": a value that is not numeric, or is 49 or more, is read as 48; a
// fraction is rounded halves to even; a value below 1 is read as 1.
int ParsePixelSize(const std::string& text);

// Reads Grid, Pixelsize, FitInWindow, PreviewBackground and ShowInspector.
void LoadSettings(const XmlStore& store, ViewState& view, WindowSettings& window);
// Reads the keys the start-up needs besides: State, Width, Height, UseFont, Splash,
// Startup and BlankIcon.
void LoadStartupSettings(const XmlStore& store, WindowSettings& window);
// Writes State, Width, Height, Grid, FitInWindow, PreviewBackground, ShowInspector ("1" or
// "0") and Pixelsize.
void SaveSettings(XmlStore& store, const ViewState& view, const WindowSettings& window);

// Screen pixels for a size in twips (15 twips a pixel at 96 dots per inch).
int TwipsToPixels(int twips, int dotsPerInch = 96);
int PixelsToTwips(int pixels, int dotsPerInch = 96);

namespace settings {
inline constexpr std::string_view State = "Settings\\State";
inline constexpr std::string_view Width = "Settings\\Width";
inline constexpr std::string_view Height = "Settings\\Height";
inline constexpr std::string_view Grid = "Settings\\Grid";
inline constexpr std::string_view Pixelsize = "Settings\\Pixelsize";
inline constexpr std::string_view FitInWindow = "Settings\\FitInWindow";
inline constexpr std::string_view PreviewBackground = "Settings\\PreviewBackground";
inline constexpr std::string_view ShowInspector = "Settings\\ShowInspector";
inline constexpr std::string_view UseFont = "Settings\\UseFont";
inline constexpr std::string_view Splash = "Settings\\Splash";
inline constexpr std::string_view ExitOK = "Settings\\ExitOK";
inline constexpr std::string_view Startup = "Settings\\Startup";
inline constexpr std::string_view BlankIcon = "Settings\\BlankIcon";
}  // namespace settings

}  // namespace iw
