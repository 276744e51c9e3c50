#pragma once
// The icon inspector: examines the open set and names the first problem it finds, with a
// one-click fix. It applies to icon files only, and to sets of at most 25 images.

#include <string>
#include <vector>

#include "document/model/IconSet.h"
#include "services/desktop/Template.h"

namespace iw {

// The problem found by the last check, in the panel's numbering.
enum class InspectorState : int {
    Correct = 0,
    MissingFormats = 1,
    NotSorted = 2,
    AllBlank = 3,
    SomeBlank = 4,
    UnneededFormats = 5,
    DuplicateFormats = 6,
};

// What the panel shows.
struct InspectorPanel {
    InspectorState state = InspectorState::Correct;
    std::string text;
    bool fixVisible = false;  // cmdFix, with fixCaption
    std::string fixCaption;
    bool checkVisible = false;  // imgCheck: all is well
    bool execVisible = false;   // imgExec: a problem was found
};

// The rules of a check: the formats the template in force asks for, and whether the user
// keeps a custom choice of formats (then missing and unneeded formats are not reported).
struct InspectorRules {
    std::vector<TemplateEntry> required;
    bool custom = false;
};

// The state for a set, ignoring the mode and size limits: missing formats, unneeded
// formats, duplicates, order, blank images, in that order of precedence.
InspectorState ExamineSet(const IconSet& set, const InspectorRules& rules);

// Whether the inspector looks at a set at all: icon files of at most 25 images.
bool InspectorApplies(const IconSet& set);

class Inspector {
  public:
    Inspector();
    // Runs the check. A cursor, an animated cursor or a set of 26 images or more is not
    // examined: the panel keeps what it showed and false is returned.
    bool Check(const IconSet& set, const InspectorRules& rules);
    const InspectorPanel& Panel() const { return panel_; }
    InspectorState State() const { return panel_.state; }

  private:
    InspectorPanel panel_;
};

}  // namespace iw
