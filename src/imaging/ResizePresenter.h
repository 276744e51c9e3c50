#pragma once
// The logic of the resize window (frmResize): the new size of the image (or selection) by
// percent (optPercent) or in pixels (optPixels), a horizontal and a vertical entry (lblH,
// lblV), the current and the new size (lblCurrent, lblNew). The window shows what this
// object holds and, on OK, resamples to NewWidth() x NewHeight() (ResizePixels).

#include <optional>
#include <string>
#include <string_view>

#include "services/core/MessageService.h"

namespace iw {

class ResizePresenter {
  public:
    enum class Mode { Percent, Pixels };
    static constexpr int kMinEntry = 1;
    static constexpr int kMaxEntry = 500;
    static constexpr int kMaxSide = 256;

    // Starts by percent at 100 x 100. The sides are taken as 1..256.
    ResizePresenter(int currentWidth, int currentHeight, MessageService& messages);

    // optPercent / optPixels: the entries change unit and keep describing the same new size
    // (held to 1..500).
    void SetMode(Mode mode);
    Mode GetMode() const { return mode_; }

    // The entries as the user leaves them. A text that is not a whole number from 1 to 500
    // shows "Please enter an integer between 1 and 500" and is refused (false): the entry
    // keeps its previous value, which the window puts back.
    bool SetHorizontal(std::string_view text);
    bool SetVertical(std::string_view text);
    int Horizontal() const { return horizontal_; }
    int Vertical() const { return vertical_; }

    // The new sides, each held to 1..256.
    int NewWidth() const;
    int NewHeight() const;

    // lblCurrent and lblNew, for example "Current Size: 32 x 32" and "New Size: 64 x 64".
    std::string CurrentText() const;
    std::string NewText() const;
    // lblNew while the user types: each entry's text counts when it is a whole number from
    // 1 to 500, else that entry's held value does. Nothing is taken and nothing is shown.
    std::string NewTextWhileTyping(std::string_view horizontal, std::string_view vertical) const;

  private:
    static std::optional<int> Parse(std::string_view text);
    bool Accept(std::string_view text, int& entry);
    int NewSide(int current, int entry) const;

    int width_;
    int height_;
    MessageService& messages_;
    Mode mode_ = Mode::Percent;
    int horizontal_ = 100;
    int vertical_ = 100;
};

}  // namespace iw
