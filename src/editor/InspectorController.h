#pragma once
// The inspector panel of the main window: the rules the set is checked against, the check
// after every change, and the fix behind cmdFix.

#include <vector>

#include "editor/EditorObserver.h"
#include "editor/Inspector.h"
#include "services/core/MessageService.h"
#include "services/desktop/TemplateLibrary.h"

namespace iw {

// The formats a set is checked against when no template was chosen for it.
inline constexpr std::string_view kDefaultTemplateName = "Windows Application";

// The formats of kDefaultTemplateName, or the same formats when the program's templates
// folder is missing.
std::vector<TemplateEntry> DefaultRequiredFormats(const TemplateLibrary& templates);

// What the inspector asks of the editor that holds it.
class IInspectorHost {
  public:
    virtual ~IInspectorHost() = default;
    virtual int CurrentIcon() const = 0;
    virtual void SelectImage(int index) = 0;
    // Before a fix changes the set: what floats above the image goes into it.
    virtual void FinishEditing() = 0;
    // A fix added, removed, moved or redrew images; `current` is the image to edit now.
    // `moved`: it is the image edited before, at a new place (its undo snapshots still
    // apply).
    virtual void ImagesChanged(int current, bool moved) = 0;
    // Lay the canvas out anew.
    virtual void RedoLayout() = 0;
};

class InspectorController {
  public:
    // Checks against `formats` until told otherwise; the panel starts with nothing found.
    InspectorController(IconSet& set, MessageService& messages, IInspectorHost& host,
                        EditorEvents& events, std::vector<TemplateEntry> formats);

    // The check (RunInspector): the panel names the first problem it finds.
    void Check();
    // cmdFix: the fix of the state shown (see the choices in the source). Returns whether
    // the set changed.
    bool Fix();
    // The user keeps a custom choice of formats: missing and unneeded ones are not reported.
    void SetCustomFormats(bool custom);
    // The formats of the template in force.
    void SetRequiredFormats(std::vector<TemplateEntry> formats);
    // A new set: these formats, not custom, nothing highlighted, checked.
    void StartOver(std::vector<TemplateEntry> formats);

    const InspectorPanel& Panel() const { return inspector_.Panel(); }
    // The images the "Show" fix points at, for the window to highlight.
    const std::vector<int>& HighlightedImages() const { return highlighted_; }
    bool CustomFormats() const { return rules_.custom; }
    const std::vector<TemplateEntry>& RequiredFormats() const { return rules_.required; }

  private:
    IconSet& set_;
    MessageService& messages_;
    IInspectorHost& host_;
    EditorEvents& events_;
    Inspector inspector_;
    InspectorRules rules_;
    std::vector<int> highlighted_;
};

}  // namespace iw
