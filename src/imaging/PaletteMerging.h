#pragma once
// Merging a palette of more than 254 colours down to 254 (entries 0..253).

#include <vector>

#include "document/model/Colors.h"
#include "services/core/UserInterface.h"

namespace iw {

// Merges entries 0..`paletteLast` of `palette` in place and returns the new PaletteLast
// (253, or `paletteLast` itself when it is 253 or less). Entries past the returned last
// keep whatever the moves left there. Lets `progress` yield after each sweep.
int MergePaletteColors(std::vector<PackedColor>& palette, int paletteLast,
                       IProgressSink* progress = nullptr);

}  // namespace iw
