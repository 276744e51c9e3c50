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
}

std::optional<int> ResizePresenter::Parse(std::string_view text) {
    const auto value = ParseInteger<int>(text);
    if (!value || *value < kMinEntry || *value > kMaxEntry) return std::nullopt;
    return value;
}

bool ResizePresenter::Accept(std::string_view text, int& entry) {
    const std::optional<int> value = Parse(text);
    if (!value) {
        messages_.Show(texts::Integer500, MessageType::Exclamation);
        return false;
    }
    entry = *value;
    return true;
}

bool ResizePresenter::SetHorizontal(std::string_view text) {
    return Accept(text, horizontal_);
}

bool ResizePresenter::SetVertical(std::string_view text) {
    return Accept(text, vertical_);
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

std::string ResizePresenter::NewTextWhileTyping(std::string_view horizontal,
                                                std::string_view vertical) const {
    return SizeText(kNewLabel, NewSide(width_, Parse(horizontal).value_or(horizontal_)),
                    NewSide(height_, Parse(vertical).value_or(vertical_)));
}

std::string ResizePresenter::CurrentText() const {
    return SizeText(kCurrentLabel, width_, height_);
}

std::string ResizePresenter::NewText() const {
    return SizeText(kNewLabel, NewWidth(), NewHeight());
}

}  // namespace iw
