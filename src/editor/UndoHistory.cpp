#include "editor/UndoHistory.h"

#include <algorithm>
#include <cstring>

#include "editor/PixelPlot.h"

namespace iw {

void CopyCorner(const IconImage& from, IconImage& to, int width, int height) {
    const auto bytes = static_cast<std::size_t>(width) * sizeof(std::int32_t);
    for (int plane = 0; plane < 2; ++plane) {
        for (int y = 0; y < height; ++y)
            std::memcpy(to.Row(y, plane).data(), from.Row(y, plane).data(), bytes);
    }
}

namespace {

// A snapshot keeps the image's sides beside its pixels, so that an operation that changed
// them (a quarter turn of a non-square image, trimming, resizing) is undone whole.
void TakeSnapshot(const IconImage& current, IconImage& level) {
    level.info.widthMinus1 = current.info.widthMinus1;
    level.info.heightMinus1 = current.info.heightMinus1;
    CopyCorner(current, level, ImageWidth(current), ImageHeight(current));
}

void PutSnapshotBack(const IconImage& level, IconImage& current) {
    current.info.widthMinus1 = level.info.widthMinus1;
    current.info.heightMinus1 = level.info.heightMinus1;
    CopyCorner(level, current, ImageWidth(level), ImageHeight(level));
    current.DropOriginalPng();
}

}  // namespace

UndoHistory::UndoHistory() {
    undoPixels_.resize(kLevels);
    redoPixels_.resize(kLevels);
    undoIds_.assign(kLevels, 0);
    redoIds_.assign(kLevels, 0);
}

// Moving a stack one level deeper means level 19 - i receives level 18 - i for i = 0..18,
// over the current image's width and height, and then level 0 receives the image. Rotating
// the levels' stores gives the same snapshots without copying nineteen of them: the cells
// outside the width by height corner differ, but no snapshot is ever read outside that
// corner, which is the level's own (its sides are kept with it).
void UndoHistory::AddUndo(const IconImage& current) {
    std::rotate(undoPixels_.rbegin(), undoPixels_.rbegin() + 1, undoPixels_.rend());
    std::rotate(undoIds_.rbegin(), undoIds_.rbegin() + 1, undoIds_.rend());
    TakeSnapshot(current, undoPixels_[0]);
    undoIds_[0] = stateId_;
    undoCount_ = std::min(undoCount_ + 1, kLevels - 1);
    stateId_ = nextId_++;
}

bool UndoHistory::Undo(IconImage& current) {
    if (undoCount_ < 0) return false;
    std::rotate(redoPixels_.rbegin(), redoPixels_.rbegin() + 1, redoPixels_.rend());
    std::rotate(redoIds_.rbegin(), redoIds_.rbegin() + 1, redoIds_.rend());
    TakeSnapshot(current, redoPixels_[0]);
    redoIds_[0] = stateId_;

    PutSnapshotBack(undoPixels_[0], current);
    stateId_ = undoIds_[0];
    // One level up: level i receives level i + 1.
    std::rotate(undoPixels_.begin(), undoPixels_.begin() + 1, undoPixels_.end());
    std::rotate(undoIds_.begin(), undoIds_.begin() + 1, undoIds_.end());
    undoCount_ -= 1;
    redoCount_ = std::min(redoCount_ + 1, kLevels - 1);
    return true;
}

bool UndoHistory::Repeat(IconImage& current) {
    if (redoCount_ < 0) return false;
    AddUndo(current);
    PutSnapshotBack(redoPixels_[0], current);
    stateId_ = redoIds_[0];
    std::rotate(redoPixels_.begin(), redoPixels_.begin() + 1, redoPixels_.end());
    std::rotate(redoIds_.begin(), redoIds_.begin() + 1, redoIds_.end());
    redoCount_ -= 1;
    return true;
}

void UndoHistory::ResetUndosRepeats() {
    undoCount_ = -1;
    redoCount_ = -1;
}

}  // namespace iw
