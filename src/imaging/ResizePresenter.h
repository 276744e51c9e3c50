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
    enum class Entry { Horizontal, Vertical };
    static constexpr int kMinEntry = 1;
    static constexpr int kMaxEntry = 500;
    static constexpr int kMaxSide = 256;

    // Starts by percent at 100 x 100, keeping proportions. The sides are taken as 1..256.
    ResizePresenter(int currentWidth, int currentHeight, MessageService& messages);

    // optPercent / optPixels: the entries change unit and keep describing the same new size
    // (held to 1..500).
    void SetMode(Mode mode);
    Mode GetMode() const { return mode_; }

    // The entries as the user leaves them. A text that is not a whole number from 1 to 500
    // shows "Please enter an integer between 1 and 500" and is refused (false): the entry
    // keeps its previous value, which the window puts back.
    // While proportions are kept, the entry taken also sets the other one.
    bool Set(Entry entry, std::string_view text);
    bool SetHorizontal(std::string_view text) { return Set(Entry::Horizontal, text); }
    bool SetVertical(std::string_view text) { return Set(Entry::Vertical, text); }
    int Horizontal() const { return horizontal_; }
    int Vertical() const { return vertical_; }

    // chkProportions: while on, the vertical entry follows the horizontal one and the other
    // way round (by percent the same value, in pixels the side in the current proportion).
    // Turning it on makes the vertical entry follow the horizontal one.
    void SetKeepProportions(bool keep);
    bool KeepProportions() const { return keep_; }

    // The new sides, each held to 1..256.
    int NewWidth() const;
    int NewHeight() const;

    // lblCurrent and lblNew, for example "Current Size: 32 x 32" and "New Size: 64 x 64".
    std::string CurrentText() const;
    std::string NewText() const;

    // What the entries and lblNew would show while the user types `text` into `entry`: the
    // text counts when it is a whole number from 1 to 500 (with the other entry following
    // while proportions are kept), else the held values do. Nothing is taken or shown.
    struct Typed {
        int horizontal;
        int vertical;
        std::string newText;
    };
    Typed WhileTyping(Entry entry, std::string_view text) const;

  private:
    static std::optional<int> Parse(std::string_view text);
    // Puts `value` into `entry` of (horizontal, vertical), the other following if kept.
    void Assign(Entry entry, int value, int& horizontal, int& vertical) const;
    int NewSide(int current, int entry) const;

    int width_;
    int height_;
    MessageService& messages_;
    Mode mode_ = Mode::Percent;
    int horizontal_ = 100;
    int vertical_ = 100;
    bool keep_ = true;
};

}  // namespace iw
