#include "editor/AnimationCommands.h"

#include <algorithm>

#include "editor/DocumentSession.h"
#include "services/core/TextCatalog.h"

namespace iw {

void AnimationCommands::Changed() {
    session_.MarkModified();
    events_.Notify(&IEditorObserver::CaptionChanged);
}

bool AnimationCommands::ApplySequence(const SequenceChoice& choice) {
    // The rates text only restates the frames' rates: it alone is no change to save.
    set_.animation.ratesText = choice.ratesText;
    if (choice.sequence == set_.properties.sequence &&
        choice.sequenceInUse == set_.animation.sequenceInUse)
        return false;
    set_.properties.sequence = choice.sequence;
    set_.animation.sequenceInUse = choice.sequenceInUse;
    Changed();
    return true;
}

bool AnimationCommands::ApplyProperties(const AnimationPropertiesValues& values) {
    if (static_cast<int>(values.rates.size()) != set_.Count()) return false;
    bool changed = values.name != set_.properties.name || values.artist != set_.properties.artist;
    set_.properties.name = values.name;
    set_.properties.artist = values.artist;
    for (int i = 0; i < set_.Count(); ++i) {
        const auto rate = static_cast<std::int16_t>(
            std::clamp(values.rates[static_cast<std::size_t>(i)], 0, kMaxRate));
        changed |= set_.Info(i).rate != rate;
        set_.Info(i).rate = rate;
    }
    if (!changed) return false;
    // The rates kept beside the sequence follow the frames' new rates.
    if (!set_.animation.ratesText.empty())
        set_.animation.ratesText = StepRatesText(PlayedSteps(set_));
    Changed();
    return true;
}

void ShowAnimationNotices(const IconSet& set, MessageService& messages) {
    if (set.mode != FileMode::ANI) return;
    if (set.animation.sequenceInUse) messages.Show(texts::SeqANI, MessageType::Information);
    if (!set.properties.name.empty() || !set.properties.artist.empty())
        messages.Show(texts::ANIInfo, MessageType::Information);
}

}  // namespace iw
