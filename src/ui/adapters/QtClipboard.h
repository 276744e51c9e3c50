#pragma once
// The system clipboard for the Edit menu. Copy puts the picture twice: as "image/png" (a
// PNG that keeps its alpha, for programs that read it) and as an ordinary image. Paste
// takes the PNG when there is one, since only it is sure to keep the alpha, else whatever
// image another program put there.

#include "editor/Clipboard.h"

class QClipboard;

namespace iw::ui {

class QtClipboard final : public IClipboard {
  public:
    explicit QtClipboard(QClipboard& clipboard) : clipboard_(clipboard) {}

    void PutPicture(const RgbaPicture& picture) override;
    std::optional<RgbaPicture> TakePicture() override;
    bool HasPicture() const override;

  private:
    QClipboard& clipboard_;
};

}  // namespace iw::ui
