#pragma once
// frmSequence: the sequence editor of an animated cursor. The set's frames in one strip
// (picFrames), the film strip of steps below (picSequence), the two options (optOrder,
// optSequence) and OK, Cancel and Help. Every change goes to the core's SequenceEditor; OK
// stores what it gives.

#include <QDialog>

#include "editor/Editor.h"
#include "editor/SequenceEditor.h"

class QRadioButton;
class QScrollArea;

namespace iw::ui {

class FrameStrip;

class SequenceDialog final : public QDialog {
    Q_OBJECT

  public:
    SequenceDialog(Editor& editor, QWidget* parent = nullptr);

    FrameStrip* Frames() const { return frames_; }
    FrameStrip* Film() const { return film_; }

    // OK: stores what the core gives and closes, or stays after the core's message.
    void accept() override;

  private:
    // Where the film strip would take a drop at this global point (-1: not over it).
    int FilmGapAt(QPoint global) const;
    void DragMoved(QPoint global);
    void DroppedFrame(QPoint global);
    void DroppedStep(QPoint global);
    void ShowSteps();

    Editor& editor_;
    SequenceEditor sequence_;
    FrameStrip* frames_ = nullptr;
    FrameStrip* film_ = nullptr;
    QScrollArea* filmArea_ = nullptr;
    QRadioButton* order_ = nullptr;
    QRadioButton* useSequence_ = nullptr;
    int draggedFrame_ = -1;  // a picture from picFrames
    int draggedStep_ = -1;   // a step of the film strip
};

}  // namespace iw::ui
