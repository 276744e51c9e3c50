#pragma once
// The animated cursor's properties window without the window: name, artist, the rate of
// each frame and the default rate, shown and typed in jiffies or in seconds.
//
// The file keeps the default rate in its header as the first frame's rate, so here the
// default rate is the first frame's rate. The frames that had that rate when the window
// opened follow the default until one of them is given a rate of its own. Rates are kept as
// typed until OK, so switching the unit converts every rate that reads as one and leaves a
// half-typed one as it is.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/model/IconSet.h"
#include "editor/AnimationRates.h"
#include "services/core/MessageService.h"

namespace iw {

// What OK stores into the set.
struct AnimationPropertiesValues {
    std::string name;
    std::string artist;
    std::vector<int> rates;  // by frame, in jiffies
    bool operator==(const AnimationPropertiesValues&) const = default;
};

class AnimationProperties {
  public:
    AnimationProperties(const IconSet& set, MessageService& messages);

    const std::string& Name() const { return values_.name; }
    const std::string& Artist() const { return values_.artist; }
    void SetName(std::string name) { values_.name = std::move(name); }
    void SetArtist(std::string artist) { values_.artist = std::move(artist); }

    RateUnit Unit() const { return unit_; }
    void SetUnit(RateUnit unit);
    std::string UnitText() const { return RateUnitText(unit_); }

    int FrameCount() const { return static_cast<int>(texts_.size()); }
    // The rates as they stand in their boxes.
    const std::string& RateText(int frame) const;
    const std::string& DefaultRateText() const { return RateText(0); }
    bool FollowsDefault(int frame) const;
    // The default rate: the first frame and every frame that follows it.
    void SetDefaultRateText(std::string text);
    // One frame's own rate (the first frame's is the default rate).
    void SetRateText(int frame, std::string text);

    // OK: the values, or nothing after the unit's rate message; InvalidFrame() then names
    // the first frame whose rate is not one.
    std::optional<AnimationPropertiesValues> Ok();
    int InvalidFrame() const { return invalidFrame_; }

  private:
    AnimationPropertiesValues values_;
    std::vector<std::string> texts_;
    std::vector<bool> follows_;
    RateUnit unit_ = RateUnit::Jiffies;
    int invalidFrame_ = -1;
    MessageService& messages_;
};

}  // namespace iw
