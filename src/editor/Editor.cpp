// The Editor's images, view, file modes, undo and document flags.
#include "editor/Editor.h"

#include <algorithm>

#include "editor/EditorTexts.h"
#include "services/core/TextCatalog.h"

namespace iw {

Editor::Editor(EditorServices services, ToolSet tools)
    : services_(services), messages_(messageStore_, services.presenter), tools_(std::move(tools)) {
    DefaultRequiredFormats();
}

// ---- Document flags ---------------------------------------------------------------------

bool Editor::Unmodified() const {
    return savedStateKnown_ && history_.StateId() == savedStateId_;
}

void Editor::MarkModified() {
    savedStateKnown_ = false;
}

std::string Editor::DocumentName() const {
    if (fileName_.empty()) return GetText(texts::Untitled);
    return std::filesystem::path(fileName_).filename().string();
}

std::string Editor::Caption() const {
    return DocumentName() + std::string(texts::kCaptionSuffix);
}

void Editor::ShowCaption() {
    services_.view.SetCaption(Caption());
}

// ---- File modes -------------------------------------------------------------------------

void Editor::SwitchICOMode() {
    set_.mode = FileMode::ICO;
}

void Editor::SwitchCURMode() {
    set_.mode = FileMode::CUR;
}

void Editor::SwitchANIMode() {
    set_.mode = FileMode::ANI;
}

std::string Editor::ModeMenuCaption() const {
    return GetText(set_.mode == FileMode::ICO ? texts::IconMenu : texts::CursorMenu);
}

// ---- Images and view --------------------------------------------------------------------

void Editor::SelectImage(int index) {
    if (index < 0 || index >= set_.Count()) return;
    CancelStroke();
    state_.CurrentIcon = static_cast<std::int16_t>(index);
    // Snapshots carry no image identity: another image must not receive them.
    ResetUndosRepeats();
    RunLayout();
}

IconImage& Editor::CurrentImage() {
    return set_.Image(std::clamp<int>(state_.CurrentIcon, 0, std::max(set_.LastIcon(), 0)));
}

const IconImage& Editor::CurrentImage() const {
    return set_.Image(std::clamp<int>(state_.CurrentIcon, 0, std::max(set_.LastIcon(), 0)));
}

void Editor::RunLayout() {
    if (!HasImage()) return;
    const IconInfo& info = CurrentImage().info;
    LayoutCanvas(state_, viewport_, info.Width(), info.Height());
}

void Editor::SetViewport(ViewportSize viewport) {
    viewport_ = viewport;
    RunLayout();
}

void Editor::ZoomIn() {
    if (!HasImage()) return;
    const IconInfo& info = CurrentImage().info;
    iw::ZoomIn(state_, viewport_, info.Width(), info.Height());
}

void Editor::ZoomOut() {
    if (!HasImage()) return;
    const IconInfo& info = CurrentImage().info;
    iw::ZoomOut(state_, viewport_, info.Width(), info.Height());
}

void Editor::NormalZoom() {
    if (!HasImage()) return;
    const IconInfo& info = CurrentImage().info;
    iw::NormalZoom(state_, viewport_, info.Width(), info.Height());
}

void Editor::SetFitInWindow(bool fit) {
    state_.FitInWindow = fit;
    RunLayout();
}

void Editor::ToggleGrid() {
    iw::ToggleGrid(state_);
    RunLayout();
}

ViewportSize Editor::CanvasSize() const {
    if (!HasImage()) return {};
    const IconInfo& info = CurrentImage().info;
    return iw::CanvasSize(state_, info.Width(), info.Height());
}

// ---- Undo -------------------------------------------------------------------------------

void Editor::AddUndo() {
    if (!HasImage()) return;
    history_.AddUndo(CurrentImage());
    if (stroke_) stroke_->recorded = true;
}

bool Editor::Undo() {
    if (!HasImage() || !history_.UndoEnabled()) return false;
    DropFloatingSelection();
    return history_.Undo(CurrentImage());
}

bool Editor::Repeat() {
    if (!HasImage() || !history_.RepeatEnabled()) return false;
    DropFloatingSelection();
    return history_.Repeat(CurrentImage());
}

void Editor::ResetUndosRepeats() {
    history_.ResetUndosRepeats();
}

}  // namespace iw
