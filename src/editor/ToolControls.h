#pragma once
// The tool bar, the tools' option panels and the colour area of the main window: the
// current tool and its options, the foreground and background colours and the alpha. Every
// change goes through a command here, which keeps the values to what the controls offer.

#include <optional>
#include <string>
#include <string_view>

#include "editor/EditorObserver.h"
#include "editor/ToolState.h"
#include "editor/ToolTable.h"
#include "editor/tools/Tool.h"

namespace iw {

enum class Channel { Red, Green, Blue, Alpha };

// A channel box accepts a numeric value with 0 <= value < 256 (a fraction is rounded,
// halves to even); anything else gives no value.
std::optional<int> ParseChannelEntry(std::string_view text);

// Told when the current tool changes, before the window hears of it.
class IToolSwitchListener {
  public:
    virtual ~IToolSwitchListener() = default;
    virtual void ToolSwitched(ToolId from, ToolId to) = 0;
};

class ToolControls final : public IColorPicker {
  public:
    explicit ToolControls(EditorEvents& events) : events_(events) {}
    void SetSwitchListener(IToolSwitchListener* listener) { switchListener_ = listener; }

    const ToolState& State() const { return state_; }
    // The option panel of the current tool.
    OptionPanel Panel() const { return InfoOf(state_.CurrentTool).panel; }

    // A tool bar click. Another tool than the current one drops a floating selection.
    void SelectTool(ToolId tool);
    // The same by key ("Pick Color"); an unknown key changes nothing and returns false.
    bool SelectTool(std::string_view key);
    // The option buttons' tags. A tag that is not one of the offered values leaves the
    // option as it was and returns false.
    bool SetBrushShape(std::string_view tag);
    bool SetLineWidth(std::string_view tag);
    bool SetSpraySize(std::string_view tag);
    void SetShapeFilled(bool filled);
    void SetGradientDirection(GradientDirection direction);
    void SetSelectionMode(SelectionMode mode);

    // The palette strip and the colour dialog (marker values included).
    void SetForeColor(PackedColor color);
    void SetBackColor(PackedColor color);
    // sldAlpha, held to 0..255.
    void SetAlpha(int alpha);
    // picSwitchColors: exchanges ForeColor and BackColor.
    void SwitchColors();
    // Typing into a channel box. A valid red, green or blue value changes that channel of
    // the foreground colour (a marker foreground starts from black); an invalid one is
    // ignored. A valid alpha sets the current alpha; an invalid alpha entry is replaced by
    // "255", which then sets the alpha to 255. Returns the text the box should show
    // afterwards when it must change, else nothing.
    std::optional<std::string> ApplyChannelEntry(Channel channel, std::string_view text);
    // The slider values for the foreground colour (markers show as black) and the alpha.
    int ChannelValue(Channel channel) const;

    // Pick Color's result: the left button into the foreground (with the alpha, when it
    // has one), the right into the background.
    void TakePickedColor(MouseButton button, PackedColor color, std::optional<int> alpha) override;

  private:
    void ColorsChanged() const { events_.Notify(&IEditorObserver::ColorsChanged); }
    void ToolChanged() const { events_.Notify(&IEditorObserver::ToolChanged); }

    EditorEvents& events_;
    IToolSwitchListener* switchListener_ = nullptr;
    ToolState state_;
};

}  // namespace iw
