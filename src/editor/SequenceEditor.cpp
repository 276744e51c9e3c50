#include "editor/SequenceEditor.h"

#include <numeric>

#include "document/io/AnimatedCursor.h"
#include "editor/AnimationPlayer.h"
#include "services/core/TextCatalog.h"

namespace iw {

SequenceEditor::SequenceEditor(const IconSet& set, MessageService& messages)
    : useSequence_(set.animation.sequenceInUse), messages_(messages) {
    for (int i = 0; i < set.Count(); ++i)
        rates_.push_back(set.Info(i).rate);
    for (int frame : ParseSequence(set.properties.sequence)) {
        if (frame < FrameCount()) steps_.push_back(frame);
    }
    if (steps_.empty()) {
        steps_.resize(rates_.size());
        std::iota(steps_.begin(), steps_.end(), 0);
    }
}

bool SequenceEditor::Insert(int frame, int gap) {
    if (frame < 0 || frame >= FrameCount() || gap < 0 || gap > static_cast<int>(steps_.size()))
        return false;
    steps_.insert(steps_.begin() + gap, frame);
    return true;
}

bool SequenceEditor::Move(int step, int gap) {
    const int count = static_cast<int>(steps_.size());
    if (step < 0 || step >= count || gap < 0 || gap > count) return false;
    // The gaps on either side of the step leave it where it is.
    if (gap == step || gap == step + 1) return false;
    const int frame = steps_[static_cast<std::size_t>(step)];
    steps_.erase(steps_.begin() + step);
    steps_.insert(steps_.begin() + (gap > step ? gap - 1 : gap), frame);
    return true;
}

bool SequenceEditor::Remove(int step) {
    if (step < 0 || step >= static_cast<int>(steps_.size())) return false;
    steps_.erase(steps_.begin() + step);
    return true;
}

SequenceChoice SequenceEditor::Choice() const {
    SequenceChoice choice;
    choice.sequence = FormatSequence(steps_);
    // An empty film strip has nothing to play in sequence: the frames play in order.
    choice.sequenceInUse = useSequence_ && !steps_.empty();
    std::vector<AnimationStep> played;
    if (choice.sequenceInUse) {
        for (int frame : steps_)
            played.push_back({frame, rates_[static_cast<std::size_t>(frame)]});
    } else {
        for (int frame = 0; frame < FrameCount(); ++frame)
            played.push_back({frame, rates_[static_cast<std::size_t>(frame)]});
    }
    choice.ratesText = StepRatesText(played);
    return choice;
}

std::optional<SequenceChoice> SequenceEditor::Ok() {
    if (useSequence_ && FrameCount() < 2) {
        messages_.Show(texts::SeqFrame, MessageType::Exclamation);
        return std::nullopt;
    }
    return Choice();
}

}  // namespace iw
