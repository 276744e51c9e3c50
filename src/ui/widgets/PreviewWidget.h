#pragma once
// picPreview: the image being edited at its actual size, one image pixel to one logical
// pixel (so on a high-density screen it shows as large as the desktop shows the icon,
// each pixel a sharp block of device pixels), over the background the View menu chose.

#include <QWidget>

#include "editor/EditorSettings.h"
#include "ui/widgets/CurrentPicture.h"

namespace iw::ui {

class PreviewWidget final : public QWidget {
    Q_OBJECT

  public:
    PreviewWidget(CurrentPicture& picture, QWidget* parent = nullptr);

    void SetBackground(PreviewBackground background);
    // The image or its sides changed.
    void ImageChanged();

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    CurrentPicture& picture_;
    PreviewBackground background_ = PreviewBackground::Grid;
};

}  // namespace iw::ui
