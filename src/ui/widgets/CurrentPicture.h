#pragma once
// The image being edited as a picture, made once per change and shared by the canvas and
// the preview.

#include "editor/Editor.h"
#include "ui/widgets/PixelPicture.h"

namespace iw::ui {

class CurrentPicture {
  public:
    explicit CurrentPicture(const Editor& editor) : editor_(editor) {}
    // The image's pixels or sides changed, or another image is edited.
    void Invalidate() { valid_ = false; }
    const PixelPicture& Get() {
        if (!valid_) {
            picture_ = MakePixelPicture(editor_.CurrentImage());
            valid_ = true;
        }
        return picture_;
    }

  private:
    const Editor& editor_;
    PixelPicture picture_;
    bool valid_ = false;
};

}  // namespace iw::ui
