#pragma once
// One frame of an animated cursor shown whole, each pixel `zoom` screen pixels square, over
// the checker, in a box as large as the set's largest frame so the view keeps still while
// frames change.

#include <QWidget>
#include <vector>

#include "document/model/IconSet.h"
#include "ui/widgets/PixelPicture.h"

namespace iw::ui {

class FrameView final : public QWidget {
  public:
    FrameView(const IconSet& set, int zoom, QWidget* parent = nullptr);

    void ShowFrame(int frame);
    int Frame() const { return frame_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const IconSet& set_;
    int zoom_;
    QSize largest_;
    std::vector<PixelPicture> pictures_;  // by frame
    int frame_ = -1;
};

}  // namespace iw::ui
