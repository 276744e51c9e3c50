#include "editor/Inspector.h"

#include <algorithm>

#include "editor/EditorTexts.h"
#include "editor/IconFormats.h"

namespace iw {
namespace {

constexpr int kMaxExaminedLastIcon = 24;  // LastIcon of 25 or more is not examined

InspectorPanel PanelFor(InspectorState state, bool custom) {
    InspectorPanel panel;
    panel.state = state;
    if (state == InspectorState::Correct) {
        panel.text = GetText(custom ? texts::InspectorCustomOk : texts::InspectorOk);
        panel.checkVisible = true;
        return panel;
    }
    panel.execVisible = true;
    panel.fixVisible = true;
    // "Fix" first, replaced for every state that has a caption of its own.
    panel.fixCaption = GetText(texts::FixFix);
    switch (state) {
        case InspectorState::MissingFormats:
            panel.text = GetText(texts::InspectorMissing);
            panel.fixCaption = GetText(texts::FixAddIcons);
            break;
        case InspectorState::NotSorted:
            panel.text = GetText(texts::InspectorUnsorted);
            panel.fixCaption = GetText(texts::FixSortIcons);
            break;
        case InspectorState::AllBlank:
            panel.text = GetText(texts::InspectorAllBlank);
            break;
        case InspectorState::SomeBlank:
            panel.text = GetText(texts::InspectorSomeBlank);
            panel.fixCaption = GetText(texts::FixCopyImage);
            break;
        case InspectorState::UnneededFormats:
            panel.text = GetText(texts::InspectorUnneeded);
            panel.fixCaption = GetText(texts::FixRemove);
            break;
        case InspectorState::DuplicateFormats:
            panel.text = GetText(texts::InspectorDuplicates);
            panel.fixCaption = GetText(texts::FixShow);
            break;
        case InspectorState::Correct:
            break;
    }
    return panel;
}

}  // namespace

InspectorState ExamineSet(const IconSet& set, const InspectorRules& rules) {
    if (!rules.custom) {
        if (!MissingFormats(set, rules.required).empty()) return InspectorState::MissingFormats;
        if (!UnneededImages(set, rules.required).empty()) return InspectorState::UnneededFormats;
    }
    if (!FindDuplicates(set).empty()) return InspectorState::DuplicateFormats;
    if (!InStandardOrder(set)) return InspectorState::NotSorted;
    int blank = 0;
    for (int i = 0; i < set.Count(); ++i) {
        if (IsBlank(set.Image(i))) ++blank;
    }
    if (blank > 0 && blank == set.Count()) return InspectorState::AllBlank;
    if (blank > 0) return InspectorState::SomeBlank;
    return InspectorState::Correct;
}

bool InspectorApplies(const IconSet& set) {
    return set.mode == FileMode::ICO && set.LastIcon() <= kMaxExaminedLastIcon;
}

Inspector::Inspector() : panel_(PanelFor(InspectorState::Correct, false)) {}

bool Inspector::Check(const IconSet& set, const InspectorRules& rules) {
    if (!InspectorApplies(set)) return false;
    panel_ = PanelFor(ExamineSet(set, rules), rules.custom);
    return true;
}

}  // namespace iw
