#include "editor/AnimationProperties.h"

#include "editor/AnimationTexts.h"

namespace iw {

AnimationProperties::AnimationProperties(const IconSet& set, MessageService& messages)
    : messages_(messages) {
    values_.name = set.properties.name;
    values_.artist = set.properties.artist;
    for (int i = 0; i < set.Count(); ++i) {
        texts_.push_back(iw::RateText(set.Info(i).rate, unit_));
        follows_.push_back(i > 0 && set.Info(i).rate == set.Info(0).rate);
    }
}

const std::string& AnimationProperties::RateText(int frame) const {
    static const std::string kNone;
    return frame >= 0 && frame < FrameCount() ? texts_[static_cast<std::size_t>(frame)] : kNone;
}

bool AnimationProperties::FollowsDefault(int frame) const {
    return frame >= 0 && frame < FrameCount() && follows_[static_cast<std::size_t>(frame)];
}

void AnimationProperties::SetUnit(RateUnit unit) {
    for (std::string& text : texts_) {
        if (const std::optional<int> jiffies = RateFromText(text, unit_))
            text = iw::RateText(*jiffies, unit);
    }
    unit_ = unit;
}

void AnimationProperties::SetDefaultRateText(std::string text) {
    if (texts_.empty()) return;
    for (std::size_t i = 1; i < texts_.size(); ++i) {
        if (follows_[i]) texts_[i] = text;
    }
    texts_[0] = std::move(text);
}

void AnimationProperties::SetRateText(int frame, std::string text) {
    if (frame == 0) return SetDefaultRateText(std::move(text));
    if (frame < 0 || frame >= FrameCount()) return;
    texts_[static_cast<std::size_t>(frame)] = std::move(text);
    follows_[static_cast<std::size_t>(frame)] = false;
}

std::optional<AnimationPropertiesValues> AnimationProperties::Ok() {
    values_.rates.clear();
    invalidFrame_ = -1;
    for (int i = 0; i < FrameCount(); ++i) {
        const std::optional<int> jiffies = RateFromText(texts_[static_cast<std::size_t>(i)], unit_);
        if (!jiffies) {
            invalidFrame_ = i;
            messages_.Show(unit_ == RateUnit::Jiffies ? texts::RateJiffies : texts::RateSeconds,
                           MessageType::Exclamation);
            return std::nullopt;
        }
        values_.rates.push_back(*jiffies);
    }
    return values_;
}

}  // namespace iw
