#pragma once
// frmPreviewANI: an animated cursor played as it would run, at actual size (picActual) and
// zoomed (picZoomed), each frame for its rate, in the sequence's order when one is in use.
// cmdPlay plays and pauses, cmdStepBack and cmdStep go one step and pause, lblStep tells
// which frame and step is shown. The core's AnimationPlayer decides; timPlay only waits.

#include <QDialog>
#include <QTimer>

#include "editor/AnimationPlayer.h"
#include "editor/Editor.h"

class QLabel;
class QPushButton;

namespace iw::ui {

class FrameView;

class AnimationPreviewDialog final : public QDialog {
    Q_OBJECT

  public:
    AnimationPreviewDialog(Editor& editor, QWidget* parent = nullptr);

  private:
    void Show();
    void TimeUp();
    void TogglePlay();

    AnimationPlayer player_;
    FrameView* actual_ = nullptr;
    FrameView* zoomed_ = nullptr;
    QLabel* step_ = nullptr;
    QPushButton* play_ = nullptr;
    QTimer timer_;
};

}  // namespace iw::ui
