#include "editor/EditorSettings.h"

#include <algorithm>

#include "editor/NumberText.h"
#include "imaging/Rounding.h"

namespace iw {
namespace {

int ReadInteger(const XmlStore& store, std::string_view key, int fallback, int low, int high) {
    const std::optional<int> value = ParseInteger(store.GetValue(key, NumberText(fallback)));
    if (!value || *value < low || *value > high) return fallback;
    return *value;
}

}  // namespace

int ParsePixelSize(const std::string& text) {
    const std::optional<double> value = ParseNumber(text);
    if (!value || *value >= 49.0) return ViewState::kMaxPixelSize;
    if (*value < 1.0) return ViewState::kMinPixelSize;
    return std::clamp(RoundHalfEven(*value), ViewState::kMinPixelSize, ViewState::kMaxPixelSize);
}

void LoadSettings(const XmlStore& store, ViewState& view, WindowSettings& window) {
    view.ShowGrid = store.GetBool(settings::Grid, false);
    view.PixelSize = ParsePixelSize(store.GetValue(settings::Pixelsize, "32"));
    view.FitInWindow = store.GetBool(settings::FitInWindow, true);
    window.previewBackground =
        static_cast<PreviewBackground>(ReadInteger(store, settings::PreviewBackground, 0, 0, 2));
    window.showInspector = store.GetBool(settings::ShowInspector, true);
}

void LoadStartupSettings(const XmlStore& store, WindowSettings& window) {
    window.windowState =
        ReadInteger(store, settings::State, WindowSettings::kMaximised, -32768, 32767);
    // A window of more than a million twips (about 70,000 pixels) is not a saved size.
    window.widthTwips =
        ReadInteger(store, settings::Width, WindowSettings::kDefaultTwips, 1, 1000000);
    window.heightTwips =
        ReadInteger(store, settings::Height, WindowSettings::kDefaultTwips, 1, 1000000);
    window.useFont = store.GetBool(settings::UseFont, false);
    window.splash = store.GetBool(settings::Splash, true);
    window.startup = ReadInteger(store, settings::Startup, 0, -32768, 32767);
    window.blankIcon = ReadInteger(store, settings::BlankIcon, 0, -32768, 32767);
}

void SaveSettings(XmlStore& store, const ViewState& view, const WindowSettings& window) {
    store.SetValue(settings::State, NumberText(window.windowState));
    store.SetValue(settings::Width, NumberText(window.widthTwips));
    store.SetValue(settings::Height, NumberText(window.heightTwips));
    store.SetBool(settings::Grid, view.ShowGrid);
    store.SetBool(settings::FitInWindow, view.FitInWindow);
    store.SetValue(settings::PreviewBackground,
                   NumberText(static_cast<int>(window.previewBackground)));
    store.SetValue(settings::ShowInspector, window.showInspector ? "1" : "0");
    store.SetValue(settings::Pixelsize, NumberText(view.PixelSize));
}

int TwipsToPixels(int twips, int dotsPerInch) {
    return static_cast<int>(static_cast<long long>(twips) * dotsPerInch / 1440);
}

int PixelsToTwips(int pixels, int dotsPerInch) {
    if (dotsPerInch <= 0) dotsPerInch = 96;
    return static_cast<int>(static_cast<long long>(pixels) * 1440 / dotsPerInch);
}

}  // namespace iw
