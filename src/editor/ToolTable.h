#pragma once
// The tools of the tool bar: key, tool tip, the option panel shown while the tool is active
// and the help topic; and the setters of the tool options, which take the tags of the
// option buttons.

#include <span>
#include <string_view>

#include "editor/EditorState.h"

namespace iw {

enum class OptionPanel { Selection, Nothing, Spray, Pencil, Line, Gradient, Shape };

struct ToolInfo {
    std::string_view key;
    std::string_view toolTip;
    OptionPanel panel;
    std::string_view helpTopic;  // empty: the tool has none
};

std::span<const ToolInfo> AllTools();
// The tool with this key, or nullptr.
const ToolInfo* FindTool(std::string_view key);
// The one option panel shown for a pressed key; any unknown key shows the empty panel.
OptionPanel OptionPanelFor(std::string_view key);

// A tool bar click: makes `key` the current tool and returns the panel to show.
OptionPanel SelectTool(EditorState& state, std::string_view key);

// The option buttons' tags. A tag that is not one of the offered values leaves the option
// as it was and returns false.
bool SetBrushShape(EditorState& state, std::string_view tag);
bool SetLineWidth(EditorState& state, std::string_view tag);
bool SetSpraySize(EditorState& state, std::string_view tag);

}  // namespace iw
