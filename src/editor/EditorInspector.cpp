// The Editor's inspector panel and its fixes.
//
// Choices made here:
// - "Add Icons" inserts a blank image of every missing format at its place in the standard
//   order; the next check then offers to copy a drawn image into them.
// - "Copy Image" takes the largest drawn image (the deepest one among equals) as the
//   source and scales it into every blank image.
// - "Show" makes the second image of the first group of duplicates current and lists every
//   duplicate for the window to highlight.
#include <algorithm>

#include "editor/Editor.h"
#include "editor/EditorTexts.h"
#include "editor/IconFormats.h"
#include "editor/ImageScaling.h"

namespace iw {
namespace {

// The index at which an image of `format` keeps a sorted set sorted.
int StandardPosition(const IconSet& set, const IconFormat& format) {
    int index = 0;
    while (index < set.Count() && !ComesBefore(format, FormatOf(set.Info(index))))
        ++index;
    return index;
}

void AddMissingFormats(IconSet& set, const std::vector<TemplateEntry>& missing) {
    for (const TemplateEntry& entry : missing) {
        if (set.Full()) break;
        IconImage image;
        image.info.widthMinus1 = entry.widthMinus1;
        image.info.heightMinus1 = entry.heightMinus1;
        image.info.bitCount = entry.bits;
        image.info.png = entry.compressed;
        for (int x = 0; x < entry.Width(); ++x) {
            for (int y = 0; y < entry.Height(); ++y)
                image.Color(x, y) = TransparentColor;
        }
        set.InsertIcon(StandardPosition(set, FormatOf(entry)), std::move(image));
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

void Editor::RunInspector() {
    inspector_.Check(set_, rules_);
}

void Editor::SetCustomFormats(bool custom) {
    rules_.custom = custom;
    RunInspector();
}

bool Editor::FixInspectorProblem() {
    if (!InspectorApplies(set_)) return false;
    highlighted_.clear();
    bool changed = false;
    const int current = state_.CurrentIcon;
    switch (inspector_.State()) {
        case InspectorState::Correct:
            return false;
        case InspectorState::MissingFormats: {
            AddMissingFormats(set_, MissingFormats(set_, rules_.required));
            changed = true;
            break;
        }
        case InspectorState::NotSorted: {
            const std::vector<int> moved = SortIntoStandardOrder(set_);
            // The current image stays current at its new place; its pixels are unchanged,
            // so its undo snapshots still apply.
            state_.CurrentIcon =
                static_cast<std::int16_t>(moved[static_cast<std::size_t>(current)]);
            changed = true;
            break;
        }
        case InspectorState::AllBlank:
            // Nothing to copy from: check again and lay the canvas out anew.
            RunLayout();
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
            if (!groups.empty()) SelectImage(groups.front()[1]);
            break;
        }
    }
    if (changed) {
        MarkModified();
        // Images were added, removed or redrawn: the current one may be another now.
        const int clamped = std::clamp<int>(state_.CurrentIcon, 0, std::max(set_.LastIcon(), 0));
        if (inspector_.State() != InspectorState::NotSorted) {
            state_.CurrentIcon = static_cast<std::int16_t>(clamped);
            ResetUndosRepeats();
        }
        RunLayout();
    }
    RunInspector();
    return changed;
}

}  // namespace iw
