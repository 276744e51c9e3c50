#include "editor/AnimationPlayer.h"

#include "document/io/AnimatedCursor.h"
#include "editor/AnimationRates.h"

namespace iw {

std::vector<AnimationStep> PlayedSteps(const IconSet& set) {
    std::vector<AnimationStep> steps;
    if (set.animation.sequenceInUse) {
        for (int frame : ParseSequence(set.properties.sequence)) {
            if (frame < set.Count()) steps.push_back({frame, set.Info(frame).rate});
        }
    }
    if (steps.empty()) {
        for (int frame = 0; frame < set.Count(); ++frame)
            steps.push_back({frame, set.Info(frame).rate});
    }
    return steps;
}

std::string StepRatesText(const std::vector<AnimationStep>& steps) {
    std::string text;
    for (const AnimationStep& step : steps)
        text += (text.empty() ? "" : "|") + std::to_string(step.jiffies);
    return text;
}

int AnimationPlayer::Frame() const {
    return steps_.empty() ? -1 : steps_[static_cast<std::size_t>(step_)].frame;
}

int AnimationPlayer::Milliseconds() const {
    return RateMilliseconds(steps_.empty() ? 0 : steps_[static_cast<std::size_t>(step_)].jiffies);
}

void AnimationPlayer::Advance() {
    if (!steps_.empty()) step_ = (step_ + 1) % StepCount();
}

void AnimationPlayer::StepForward() {
    Pause();
    Advance();
}

void AnimationPlayer::StepBack() {
    Pause();
    if (!steps_.empty()) step_ = (step_ + StepCount() - 1) % StepCount();
}

}  // namespace iw
