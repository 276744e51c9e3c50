#pragma once
// The tools of the tool bar: which tools there are, and for each its key (the tag the tool
// bar and the settings know it by), tool tip, the option panel shown while it is active and
// its help topic; and the setters of the tool options, which take the option buttons' tags.

#include <optional>
#include <span>
#include <string_view>

#include "editor/EditorState.h"

namespace iw {

enum class OptionPanel { Selection, Nothing, Spray, Pencil, Line, Gradient, Shape };

struct ToolInfo {
    ToolId id;
    std::string_view key;
    std::string_view toolTip;
    OptionPanel panel;
    std::string_view helpTopic;  // empty: the tool has none
};

// Every tool in the tool bar's order, which is the order of ToolId.
std::span<const ToolInfo> AllTools();
const ToolInfo& InfoOf(ToolId tool);
// The tool with this key ("Pick Color"), or nothing.
std::optional<ToolId> ToolFromKey(std::string_view key);

// A tool bar click: makes `tool` the current tool.
void SelectTool(EditorState& state, ToolId tool);
// The same by key; an unknown key changes nothing and returns false.
bool SelectTool(EditorState& state, std::string_view key);

// The option buttons' tags. A tag that is not one of the offered values leaves the option
// as it was and returns false.
bool SetBrushShape(EditorState& state, std::string_view tag);
bool SetLineWidth(EditorState& state, std::string_view tag);
bool SetSpraySize(EditorState& state, std::string_view tag);

}  // namespace iw
