#include "imaging/ResizePresenter.h"

#include <algorithm>
#include <optional>

#include "imaging/Rounding.h"
#include "services/core/ParseInteger.h"
#include "services/core/TextCatalog.h"

namespace iw {
namespace {

constexpr TextId kCurrentLabel{"lblCurrent", "frmResize", "Current Size:"};
constexpr TextId kNewLabel{"lblNew", "frmResize", "New Size:"};

std::string SizeText(const TextId& label, int width, int height) {
    return GetText(label) + " " + std::to_string(width) + " x " + std::to_string(height);
}

}  // namespace

ResizePresenter::ResizePresenter(int currentWidth, int currentHeight, MessageService& messages)
    : width_(std::clamp(currentWidth, 1, kMaxSide)),
      height_(std::clamp(currentHeight, 1, kMaxSide)),
      messages_(messages) {}

void ResizePresenter::SetMode(Mode mode) {
    if (mode == mode_) return;
    const int newWidth = NewWidth();
    const int newHeight = NewHeight();
    mode_ = mode;
    if (mode == Mode::Pixels) {
        horizontal_ = newWidth;
        vertical_ = newHeight;
    } else {
        horizontal_ = std::clamp(RoundHalfEven(100 * newWidth, width_), kMinEntry, kMaxEntry);
        vertical_ = std::clamp(RoundHalfEven(100 * newHeight, height_), kMinEntry, kMaxEntry);
    }
    // Rounding each side on its own could make kept proportions drift apart.
    if (keep_) Assign(Entry::Horizontal, horizontal_, horizontal_, vertical_);
}

std::optional<int> ResizePresenter::Parse(std::string_view text) {
    const auto value = ParseInteger<int>(text);
    if (!value || *value < kMinEntry || *value > kMaxEntry) return std::nullopt;
    return value;
}

void ResizePresenter::Assign(Entry entry, int value, int& horizontal, int& vertical) const {
    const bool byHorizontal = entry == Entry::Horizontal;
    (byHorizontal ? horizontal : vertical) = value;
    if (!keep_) return;
    int following = value;
    if (mode_ == Mode::Pixels) {
        following = byHorizontal ? RoundHalfEven(value * height_, width_)
                                 : RoundHalfEven(value * width_, height_);
    }
    (byHorizontal ? vertical : horizontal) = std::clamp(following, kMinEntry, kMaxEntry);
}

bool ResizePresenter::Set(Entry entry, std::string_view text) {
    const std::optional<int> value = Parse(text);
    if (!value) {
        messages_.Show(texts::Integer500, MessageType::Exclamation);
        return false;
    }
    Assign(entry, *value, horizontal_, vertical_);
    return true;
}

void ResizePresenter::SetKeepProportions(bool keep) {
    keep_ = keep;
    Assign(Entry::Horizontal, horizontal_, horizontal_, vertical_);
}

int ResizePresenter::NewSide(int current, int entry) const {
    const int side = mode_ == Mode::Percent ? RoundHalfEven(current * entry, 100) : entry;
    return std::clamp(side, 1, kMaxSide);
}

int ResizePresenter::NewWidth() const {
    return NewSide(width_, horizontal_);
}

int ResizePresenter::NewHeight() const {
    return NewSide(height_, vertical_);
}

ResizePresenter::Typed ResizePresenter::WhileTyping(Entry entry, std::string_view text) const {
    Typed typed{horizontal_, vertical_, {}};
    if (const std::optional<int> value = Parse(text))
        Assign(entry, *value, typed.horizontal, typed.vertical);
    typed.newText =
        SizeText(kNewLabel, NewSide(width_, typed.horizontal), NewSide(height_, typed.vertical));
    return typed;
}

std::string ResizePresenter::CurrentText() const {
    return SizeText(kCurrentLabel, width_, height_);
}

std::string ResizePresenter::NewText() const {
    return SizeText(kNewLabel, NewWidth(), NewHeight());
}

}  // namespace iw
