// The Editor's own work: which image is edited, undo, and what the parts ask of it.
#include "editor/Editor.h"

#include <algorithm>

#include "editor/FloatingPicture.h"

namespace iw {

Editor::Editor(EditorServices services, ToolSet tools)
    : services_(services),
      settings_(services.presenter, events_),
      tools_(events_),
      view_(events_),
      canvas_(*this, tools_, hotspot_, services.random, events_, std::move(tools)),
      edit_(*this, canvas_, tools_, settings_.Messages(), events_),
      inspector_(set_, settings_.Messages(), *this, events_,
                 DefaultRequiredFormats(settings_.Templates())),
      session_(set_, history_, settings_, services_, *this, events_) {
    tools_.SetSwitchListener(&canvas_);
}

// ---- The image being edited -------------------------------------------------------------

IconImage* Editor::EditedImage() {
    if (set_.Empty()) return nullptr;
    return &set_.Image(std::clamp(currentIcon_, 0, set_.LastIcon()));
}

const IconImage& Editor::CurrentImage() const {
    static const IconImage kNoImage;
    if (set_.Empty()) return kNoImage;
    return set_.Image(std::clamp(currentIcon_, 0, set_.LastIcon()));
}

void Editor::ShowCurrentImage() {
    if (!HasImage()) return;
    const IconInfo& info = CurrentImage().info;
    view_.ShowImage(info.Width(), info.Height());
}

void Editor::SelectImage(int index) {
    if (index < 0 || index >= set_.Count()) return;
    canvas_.DropFloatingSelection();
    canvas_.CancelStroke();
    currentIcon_ = index;
    // Snapshots carry no image identity: another image must not receive them.
    ResetUndosRepeats();
    ShowCurrentImage();
    Notify(&IEditorObserver::CurrentImageChanged);
}

void Editor::RedoLayout() {
    ShowCurrentImage();
}

// ---- Undo -------------------------------------------------------------------------------

void Editor::AddUndo() {
    IconImage* image = EditedImage();
    if (!image) return;
    // A change to the image takes a floating selection with it.
    canvas_.DropFloatingSelection();
    history_.AddUndo(*image);
    Notify(&IEditorObserver::UndoStateChanged);
}

bool Editor::Undo() {
    return StepHistory(history_.UndoEnabled(), &UndoHistory::Undo);
}

bool Editor::Repeat() {
    return StepHistory(history_.RepeatEnabled(), &UndoHistory::Repeat);
}

bool Editor::StepHistory(bool offered, bool (UndoHistory::*step)(IconImage&)) {
    if (!HasImage() || !offered) return false;
    canvas_.DropFloatingSelection();
    IconImage& image = *EditedImage();
    const IconInfo sides = image.info;
    (history_.*step)(image);
    if (image.info.widthMinus1 != sides.widthMinus1 ||
        image.info.heightMinus1 != sides.heightMinus1) {
        ShowCurrentImage();
        Notify(&IEditorObserver::SetChanged);
    }
    Notify(&IEditorObserver::ImageChanged);
    Notify(&IEditorObserver::UndoStateChanged);
    return true;
}

void Editor::ResetUndosRepeats() {
    history_.ResetUndosRepeats();
    Notify(&IEditorObserver::UndoStateChanged);
}

// ---- Windows over the image ------------------------------------------------------------

std::unique_ptr<ColorAdjustments> Editor::AdjustColors(IAdjustmentsObserver* window) {
    IconImage* image = EditedImage();
    if (!image) return nullptr;
    adjustments_.window = window;
    adjustments_.before = std::make_unique<IconImage>(image->Clone());
    IconImage* target = image;
    if (std::unique_ptr<IFloatingSelection> taken = canvas_.TakeFloatingSelection()) {
        // The adjustments work on a floating picture of our own, which stays floating.
        taken->Drop(*adjustments_.before, tools_.State().Selection);
        auto floating = std::make_unique<FloatingPicture>(taken->Pixels().Clone(), taken->Origin());
        target = &floating->EditPixels();
        canvas_.Float(std::move(floating));
    }
    return std::make_unique<ColorAdjustments>(*target, &adjustments_);
}

void Editor::AdjustmentsRelay::ImageChanged() {
    if (window) window->ImageChanged();
    editor_.Notify(&IEditorObserver::ImageChanged);
}

void Editor::AdjustmentsRelay::Closed(bool kept) {
    if (window) window->Closed(kept);
    if (kept && before) {
        editor_.RecordUndo(*before);
        editor_.inspector_.Check();
    }
    before.reset();
}

// ---- The Image menu's operations ------------------------------------------------------

void Editor::RecordUndo(const IconImage& before) {
    history_.AddUndo(before);
    Notify(&IEditorObserver::UndoStateChanged);
}

void Editor::ImageEdited(bool sidesChanged) {
    if (sidesChanged) {
        ShowCurrentImage();
        Notify(&IEditorObserver::SetChanged);
    }
    Notify(&IEditorObserver::ImageChanged);
    inspector_.Check();
}

// ---- What the parts report --------------------------------------------------------------

void Editor::StrokeFinished() {
    inspector_.Check();
}

void Editor::SetReplaced(const std::vector<TemplateEntry>* formats) {
    canvas_.Reset();
    currentIcon_ = 0;
    ResetUndosRepeats();
    inspector_.StartOver(formats ? *formats : DefaultRequiredFormats(settings_.Templates()));
    ShowCurrentImage();
    Notify(&IEditorObserver::SetChanged);
    Notify(&IEditorObserver::CurrentImageChanged);
}

void Editor::ImagesChanged(int current, bool moved) {
    session_.MarkModified();
    currentIcon_ = std::clamp(current, 0, std::max(set_.LastIcon(), 0));
    if (!moved) {
        canvas_.CancelStroke();
        ResetUndosRepeats();
    }
    ShowCurrentImage();
    Notify(&IEditorObserver::SetChanged);
    Notify(&IEditorObserver::CurrentImageChanged);
}

void Editor::ImagesEdited(int current, bool sameImage) {
    ImagesChanged(current, sameImage);
    inspector_.Check();
}

}  // namespace iw
