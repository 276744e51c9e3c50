// The inspector's check and fixes.
//
// Choices made here:
// - "Add Icons" inserts a blank image of every missing format at its place in the standard
//   order; the next check then offers to copy a drawn image into them.
// - "Copy Image" takes the largest drawn image (the deepest one among equals) as the
//   source and scales it into every blank image.
// - "Show" makes the second image of the first group of duplicates current and lists every
//   duplicate for the window to highlight.
#include "editor/InspectorController.h"

#include "editor/EditorTexts.h"
#include "editor/IconFormats.h"
#include "editor/ImageScaling.h"

namespace iw {
namespace {

void AddMissingFormats(IconSet& set, const std::vector<TemplateEntry>& missing) {
    for (const TemplateEntry& entry : missing) {
        if (set.Full()) break;
        set.InsertIcon(StandardPosition(set, FormatOf(entry)), BlankImage(entry));
    }
}

// The drawn image to copy from: the largest, then the deepest; -1 when all are blank.
int CopySource(const IconSet& set) {
    int best = -1;
    for (int i = 0; i < set.Count(); ++i) {
        if (IsBlank(set.Image(i))) continue;
        if (best < 0 || ComesBefore(FormatOf(set.Info(i)), FormatOf(set.Info(best)))) best = i;
    }
    return best;
}

}  // namespace

std::vector<TemplateEntry> DefaultRequiredFormats(const TemplateLibrary& templates) {
    if (const IconTemplate* fallback = templates.Find(kDefaultTemplateName))
        return fallback->entries;
    std::vector<TemplateEntry> formats;
    for (int side : {256, 48, 32, 24, 16}) {
        TemplateEntry entry;
        entry.widthMinus1 = static_cast<std::int16_t>(side - 1);
        entry.heightMinus1 = static_cast<std::int16_t>(side - 1);
        entry.bits = 32;
        entry.compressed = side == 256 ? 1 : 0;
        formats.push_back(entry);
    }
    return formats;
}

InspectorController::InspectorController(IconSet& set, MessageService& messages,
                                         IInspectorHost& host, EditorEvents& events,
                                         std::vector<TemplateEntry> formats)
    : set_(set), messages_(messages), host_(host), events_(events), rules_{std::move(formats)} {}

void InspectorController::Check() {
    inspector_.Check(set_, rules_);
    events_.Notify(&IEditorObserver::InspectorChanged);
}

void InspectorController::SetCustomFormats(bool custom) {
    rules_.custom = custom;
    Check();
}

void InspectorController::SetRequiredFormats(std::vector<TemplateEntry> formats) {
    rules_.required = std::move(formats);
    Check();
}

void InspectorController::StartOver(std::vector<TemplateEntry> formats) {
    rules_ = {std::move(formats), false};
    highlighted_.clear();
    Check();
}

bool InspectorController::Fix() {
    if (!InspectorApplies(set_)) return false;
    host_.FinishEditing();
    highlighted_.clear();
    const int current = host_.CurrentIcon();
    int next = current;
    bool moved = false;
    bool changed = false;
    switch (inspector_.State()) {
        case InspectorState::Correct:
            return false;
        case InspectorState::MissingFormats:
            AddMissingFormats(set_, MissingFormats(set_, rules_.required));
            changed = true;
            break;
        case InspectorState::NotSorted:
            // The current image stays current at its new place; its pixels are unchanged,
            // so its undo snapshots still apply.
            next = SortIntoStandardOrder(set_)[static_cast<std::size_t>(current)];
            moved = true;
            changed = true;
            break;
        case InspectorState::AllBlank:
            // Nothing to copy from: check again and lay the canvas out anew.
            host_.RedoLayout();
            break;
        case InspectorState::SomeBlank: {
            const int source = CopySource(set_);
            if (source < 0) break;
            for (int i = 0; i < set_.Count(); ++i) {
                if (i != source && IsBlank(set_.Image(i)))
                    ScaleImageInto(set_.Image(source), set_.Image(i));
            }
            changed = true;
            break;
        }
        case InspectorState::UnneededFormats: {
            const MessageAnswer answer =
                messages_.Show(texts::ExtraFormats, MessageType::Question, MessageButtons::YesNo);
            if (answer != MessageAnswer::Yes) return false;
            const std::vector<int> unneeded = UnneededImages(set_, rules_.required);
            for (auto it = unneeded.rbegin(); it != unneeded.rend(); ++it)
                set_.RemoveIcon(*it);
            changed = true;
            break;
        }
        case InspectorState::DuplicateFormats: {
            const auto groups = FindDuplicates(set_);
            for (const auto& group : groups)
                highlighted_.insert(highlighted_.end(), group.begin(), group.end());
            if (!groups.empty()) host_.SelectImage(groups.front()[1]);
            break;
        }
    }
    if (changed) host_.ImagesChanged(next, moved);
    Check();
    return changed;
}

}  // namespace iw
