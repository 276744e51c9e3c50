#pragma once
// Undo and Repeat: two stacks of whole-image snapshots of the image being edited, UndoPixels
// and RedoPixels, twenty levels each, level 0 the newest. A snapshot holds the current image's
// width by height cells of both planes and those two sides (so an operation that changed them is
// undone whole), not its depth or place in the set, so the owner must call ResetUndosRepeats
// whenever the current image or its depth changes and whenever a set is opened or made.

#include <cstdint>
#include <vector>

#include "document/model/IconImage.h"

namespace iw {

class UndoHistory {
  public:
    static constexpr int kLevels = 20;

    UndoHistory();

    // Records the current image before a change: the undo stack goes one level deeper (its
    // oldest snapshot falls off once it holds twenty), the image becomes level 0. The redo
    // stack is left as it is, on purpose: Repeat stays available after further drawing.
    void AddUndo(const IconImage& current);
    // Steps back: the image goes onto the redo stack and undo level 0 comes back into it,
    // with the sides it had.
    // Returns false, changing nothing, when there is nothing to undo.
    bool Undo(IconImage& current);
    // Steps forward: the image goes onto the undo stack (as AddUndo) and redo level 0 comes
    // back into it. Returns false, changing nothing, when there is nothing to repeat.
    bool Repeat(IconImage& current);
    // Empties both stacks by their counts; the stored levels are not cleared.
    void ResetUndosRepeats();

    // The deepest valid level of each stack, -1 when it is empty; never above 19.
    int UndoCount() const { return undoCount_; }
    int RedoCount() const { return redoCount_; }
    // What the window binds the enabled state of Undo and Repeat (menu and tool bar) to.
    bool UndoEnabled() const { return undoCount_ >= 0; }
    bool RepeatEnabled() const { return redoCount_ >= 0; }

    // An identity for the current image's contents as far as the stacks know them: a new
    // one after every AddUndo, and the earlier one again after Undo or Repeat brings that
    // state back. The document compares it with the identity it had when it was saved.
    std::uint64_t StateId() const { return stateId_; }

    // The snapshot at a level of each stack (0 the newest), both planes as IconPixels holds
    // them.
    const IconImage& UndoPixels(int level) const {
        return undoPixels_[static_cast<std::size_t>(level)];
    }
    const IconImage& RedoPixels(int level) const {
        return redoPixels_[static_cast<std::size_t>(level)];
    }

  private:
    std::vector<IconImage> undoPixels_;
    std::vector<IconImage> redoPixels_;
    std::vector<std::uint64_t> undoIds_;
    std::vector<std::uint64_t> redoIds_;
    int undoCount_ = -1;
    int redoCount_ = -1;
    std::uint64_t stateId_ = 0;
    std::uint64_t nextId_ = 1;
};

// Copies the top-left width by height cells of both planes from one image's store to
// another's. The rest of `to` keeps what it held.
void CopyCorner(const IconImage& from, IconImage& to, int width, int height);

}  // namespace iw
