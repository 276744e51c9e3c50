#pragma once
// Plays an animated cursor as it would run: the steps of its sequence when one is in use,
// else every frame in order, each for its frame's rate, round and round. The window's timer
// asks which frame to show and for how long, and calls Advance when that time is up.

#include <string>
#include <vector>

#include "document/model/IconSet.h"

namespace iw {

struct AnimationStep {
    int frame = 0;
    int jiffies = 0;
    bool operator==(const AnimationStep&) const = default;
};

// The steps the set plays: the sequence's frames that exist while a sequence is in use (every
// frame in order when none is left), each with its frame's rate.
std::vector<AnimationStep> PlayedSteps(const IconSet& set);
// The steps' rates joined by "|", as the reader keeps a file's rates.
std::string StepRatesText(const std::vector<AnimationStep>& steps);

class AnimationPlayer {
  public:
    explicit AnimationPlayer(std::vector<AnimationStep> steps) : steps_(std::move(steps)) {}
    explicit AnimationPlayer(const IconSet& set) : AnimationPlayer(PlayedSteps(set)) {}

    int StepCount() const { return static_cast<int>(steps_.size()); }
    int Step() const { return step_; }
    // The frame to show now (-1 without frames) and for how many milliseconds.
    int Frame() const;
    int Milliseconds() const;

    bool Playing() const { return playing_ && !steps_.empty(); }
    void Play() { playing_ = true; }
    void Pause() { playing_ = false; }
    void TogglePlay() { playing_ = !playing_; }

    // The current step's time is up: the next step, after the last the first again.
    void Advance();
    // The step buttons: pause, then one step forward or back (round the ends).
    void StepForward();
    void StepBack();

  private:
    std::vector<AnimationStep> steps_;
    int step_ = 0;
    bool playing_ = true;
};

}  // namespace iw
