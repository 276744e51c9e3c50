#include "editor/FormatsCheck.h"

namespace iw {

bool FormatsCheckOffered(const IconSet& set) {
    return InspectorApplies(set);
}

bool RunFormatsCheck(InspectorController& inspector) {
    inspector.Check();
    if (inspector.Panel().state != InspectorState::MissingFormats) return false;
    return inspector.Fix();
}

}  // namespace iw
