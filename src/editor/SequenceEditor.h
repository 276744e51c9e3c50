#pragma once
// The sequence editor's logic: the frames of an animated cursor (the set's images) above, and
// the film strip of steps below, each step a frame shown. Frames are put into the film
// strip, steps are moved within it and taken out of it; two options choose between playing
// the frames in order and playing the sequence.
//
// The film strip starts with the set's sequence (its frames that exist), or with every frame
// in order when there is none. OK stores the film strip, left to right, as the sequence text
// ("2,0,1,"), sets the sequence flag when the sequence option is chosen (and clears it
// otherwise), and keeps the rate of every step played, joined by "|", as the file stores
// them. The sequence option needs more than one frame: OK then shows "SeqFrame".

#include <optional>
#include <string>
#include <vector>

#include "document/model/IconSet.h"
#include "services/core/MessageService.h"

namespace iw {

// What OK stores into the set.
struct SequenceChoice {
    std::string sequence;  // frame indices, each followed by ","
    bool sequenceInUse = false;
    std::string ratesText;  // the rate of each step played, joined by "|"
    bool operator==(const SequenceChoice&) const = default;
};

class SequenceEditor {
  public:
    SequenceEditor(const IconSet& set, MessageService& messages);

    int FrameCount() const { return static_cast<int>(rates_.size()); }
    // The film strip: the frame shown at each step.
    const std::vector<int>& Steps() const { return steps_; }
    bool UseSequence() const { return useSequence_; }
    void SetUseSequence(bool use) { useSequence_ = use; }

    // Positions in the film strip are gaps: 0 before the first step, Steps().size() after
    // the last. Each returns false, changing nothing, for a frame, step or gap that is not
    // there.
    // A frame dropped into the film strip at `gap`.
    bool Insert(int frame, int gap);
    // The step at `step` dragged to `gap`; dropping it beside itself changes nothing.
    bool Move(int step, int gap);
    // The step at `step` dragged out of the film strip.
    bool Remove(int step);

    // What OK would store.
    SequenceChoice Choice() const;
    // OK: the choice, or nothing after "SeqFrame" (the window stays open).
    std::optional<SequenceChoice> Ok();

  private:
    std::vector<int> rates_;  // by frame, in jiffies
    std::vector<int> steps_;
    bool useSequence_ = false;
    MessageService& messages_;
};

}  // namespace iw
