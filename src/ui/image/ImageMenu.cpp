#include "ui/image/ImageMenu.h"

#include <QAction>
#include <QMenu>
#include <utility>
#include <vector>

#include "ui/image/AdjustmentsDialog.h"
#include "ui/image/ResizeDialog.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainWindow.h"

namespace iw::ui {
namespace {

constexpr TextId T(std::string_view key, std::string_view text) {
    return {key, "frmMain", text};
}

// The colours an operation works with: it has nothing to work with while one is a marker.
enum class Uses { NoColor, Fore, ForeAndBack };

struct OperationItem {
    const char* name;
    TextId text;
    ImageOperation operation;
    bool separatorBefore = false;
    Uses uses = Uses::NoColor;
};

const OperationItem kOperations[] = {
    {"mnuFlipHorizontal", T("mnuFlipHorizontal", "Flip &Horizontal"),
     ImageOperation::FlipHorizontal, true},
    {"mnuFlipVertical", T("mnuFlipVertical", "Flip &Vertical"), ImageOperation::FlipVertical},
    {"mnuRotate90", T("mnuRotate90", "Rotate 90\u00B0 &Clockwise"), ImageOperation::Rotate90},
    {"mnuRotate180", T("mnuRotate180", "Rotate &180\u00B0"), ImageOperation::Rotate180},
    {"mnuRotate270", T("mnuRotate270", "Rotate 90\u00B0 C&ounterclockwise"),
     ImageOperation::Rotate270},
    {"mnuTrim", T("mnuTrim", "&Trim to Content"), ImageOperation::Trim},
    {"mnuGreyscale", T("mnuGreyscale", "&Greyscale"), ImageOperation::Greyscale, true},
    {"mnuInvert", T("mnuInvert", "&Invert Colors"), ImageOperation::Invert},
    {"mnuMakeTransparent", T("mnuMakeTransparent", "Make Foreground Color Trans&parent"),
     ImageOperation::MakeTransparent, false, Uses::Fore},
    {"mnuColorize", T("mnuColorize", "Colori&ze with Foreground Color"), ImageOperation::Colorize,
     false, Uses::Fore},
    {"mnuTwoTone", T("mnuTwoTone", "T&wo-Tone (Foreground and Background)"),
     ImageOperation::TwoTone, false, Uses::ForeAndBack},
    {"mnuBlur", T("mnuBlur", "&Blur"), ImageOperation::Blur, true},
    {"mnuSharpen", T("mnuSharpen", "&Sharpen"), ImageOperation::Sharpen},
    {"mnuSmoothAlpha", T("mnuSmoothAlpha", "S&mooth Alpha"), ImageOperation::SmoothAlpha},
    {"mnuDropShadow", T("mnuDropShadow", "&Drop Shadow"), ImageOperation::DropShadow},
};

constexpr TextId kAdjust = T("mnuAdjustColors", "&Adjust Colors...");
constexpr TextId kResize = T("mnuResize", "R&esize...");

}  // namespace

void InstallImageMenu(MainWindow& window) {
    MainActions& actions = *window.Actions();
    Editor& editor = window.GetEditor();
    QMenu* menu = actions.MenuFor(MenuId::Image);
    QAction* adjust =
        actions.AddCommand(MenuId::Image, "mnuAdjustColors", kAdjust,
                           [&editor, &window] { AdjustmentsDialog::Open(editor, &window); });
    QAction* resize = actions.AddCommand(MenuId::Image, "mnuResize", kResize, [&editor, &window] {
        ResizeDialog::Open(editor, &window);
    });

    std::vector<std::pair<QAction*, Uses>> items{{adjust, Uses::NoColor}, {resize, Uses::NoColor}};
    for (const OperationItem& item : kOperations) {
        if (item.separatorBefore) menu->addSeparator();
        QAction* action =
            actions.AddCommand(MenuId::Image, item.name, item.text,
                               [&editor, op = item.operation] { editor.Operations().Run(op); });
        items.emplace_back(action, item.uses);
    }
    QObject::connect(menu, &QMenu::aboutToShow, menu, [&editor, items] {
        const ToolState& state = editor.Tools().State();
        const bool image = editor.HasImage();
        const bool fore = image && !IsMarker(state.ForeColor);
        const bool both = fore && !IsMarker(state.BackColor);
        for (const auto& [action, uses] : items)
            action->setEnabled(uses == Uses::NoColor ? image : uses == Uses::Fore ? fore : both);
    });
}

}  // namespace iw::ui
