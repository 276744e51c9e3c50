#pragma once
// The mode menu's Check Icon (mnuCheckIcon): the formats check, which adds a blank image of
// every required format the set lacks (the same work as the inspector's "Add Icons").

#include "document/model/IconSet.h"
#include "editor/InspectorController.h"

namespace iw {

// Whether the command is offered: the inspector looks at icon files of at most 25 images.
bool FormatsCheckOffered(const IconSet& set);

// Checks the set and, when required formats are missing, adds them. Returns whether the
// set changed.
bool RunFormatsCheck(InspectorController& inspector);

}  // namespace iw
