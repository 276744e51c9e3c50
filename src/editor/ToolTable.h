#pragma once
// The tools of the tool bar: for each its key (the tag the tool bar and the settings know
// it by), tool tip, the option panel shown while it is active and its help topic.

#include <optional>
#include <span>
#include <string_view>

#include "editor/ToolState.h"

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

}  // namespace iw
