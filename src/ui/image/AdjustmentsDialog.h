#pragma once
// The adjustments window (frmBrightness): brightness, contrast, gamma and saturation sliders
// and the channel choice over the core's ColorAdjustments. Every change recomputes the image
// (or the floating selection), which the canvas and the preview show at once; OK keeps it,
// Cancel, Escape and closing the window put it back.

#include <QDialog>
#include <memory>

#include "editor/Editor.h"

class QGridLayout;
class QSlider;

namespace iw::ui {

class AdjustmentsDialog final : public QDialog {
    Q_OBJECT

  public:
    // Starts the adjustments on what the editor is editing; `editor` must outlive the window.
    explicit AdjustmentsDialog(Editor& editor, QWidget* parent = nullptr);

    // Opens a window over `parent`, modal, deleted when it closes. Nothing when the editor
    // has no image.
    static void Open(Editor& editor, QWidget* parent);

  protected:
    void done(int result) override;

  private:
    QSlider* AddSlider(QGridLayout& grid, int row, const char* name, const char* label,
                       std::string_view text, void (ColorAdjustments::*set)(int));

    std::unique_ptr<ColorAdjustments> adjustments_;
};

}  // namespace iw::ui
