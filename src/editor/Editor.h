#pragma once
// The main window's logic without the window. One Editor per main window owns the one icon
// set and the parts that work on it, each in a file of its own:
// - Document(): the document lifecycle (new, open, save, ask to save, recent files, modes);
// - View(): zoom, fit and grid;
// - Tools(): the current tool, its options and the colours;
// - Canvas(): pointer and key events for the current tool, the floating selection;
// - Edit(): cut, copy, paste, delete, select all and placed text;
// - Hotspot(): Set Hotspot for cursors;
// - Images(): add, remove, change and move the set's images;
// - Inspector(): the inspector panel and its fix;
// - Settings(): the settings and message stores, the window's settings, the templates;
// - Animation(): an animated cursor's sequence, properties and preview.
// The Editor itself holds which image is edited and the undo history, wires the parts
// together and runs start-up and exit. The window calls commands (on the Editor or a part),
// follows the editor through an IEditorObserver and paints from the read-only views.

#include <string_view>
#include <vector>

#include "document/model/IconSet.h"
#include "editor/AnimationCommands.h"
#include "editor/CanvasController.h"
#include "editor/DocumentSession.h"
#include "editor/EditCommands.h"
#include "editor/EditorObserver.h"
#include "editor/EditorServices.h"
#include "editor/HotspotControl.h"
#include "editor/ImageCommands.h"
#include "editor/ImageListCommands.h"
#include "editor/InspectorController.h"
#include "editor/ProgramSettings.h"
#include "editor/ToolControls.h"
#include "editor/UndoHistory.h"
#include "editor/ViewController.h"
#include "imaging/ColorAdjustments.h"

namespace iw {

struct StartupResult {
    bool showStartupDialog = false;  // the start-up action made nothing and no file was given
    bool logRequested = false;       // "/log" was on the command line
    bool previousRunEndedCleanly = true;
};

class Editor final : private ICanvasHost,
                     private IDocumentHost,
                     private IInspectorHost,
                     private IHotspotHost,
                     private IImageListHost,
                     private IImageCommandHost {
  public:
    explicit Editor(EditorServices services, ToolSet tools = StandardTools());
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    void AddObserver(IEditorObserver& observer) { events_.Add(observer); }
    void RemoveObserver(IEditorObserver& observer) { events_.Remove(observer); }

    // ---- Start-up and exit -------------------------------------------------------------
    // The main window's load, steps 1 to 8: caption, the two stores, the settings, splash
    // and ExitOK, an empty set, the window's size, the start-up action, the command line.
    // The templates are loaded with the settings. When the set is still empty afterwards a
    // new untitled set is made, so the canvas always has an image.
    StartupResult RunStartup(std::string_view commandLine, const StartupFolders& folders = {});
    // Step 8 alone: "/log", an edit request ending in ".xml", or a file to open; a file that
    // cannot be found shows "This file cannot be found or the command is invalid." and the
    // command line. Returns whether a file was opened.
    bool HandleCommandLine(std::string_view commandLine);
    // The window is asked to close: ask to save. False when the user cancelled.
    bool QueryClose();
    // The window unloads: an edit request is answered, the settings and the message store
    // are written back.
    void Shutdown();

    // ---- The set and the image being edited --------------------------------------------
    const IconSet& Set() const { return set_; }
    bool HasImage() const { return !set_.Empty(); }
    // CurrentIcon: the index of the image being edited.
    int CurrentIcon() const override { return currentIcon_; }
    // The image being edited; a blank 1 x 1 image while the set is empty.
    const IconImage& CurrentImage() const;
    // Another image becomes current: a floating selection is dropped into the old one, the
    // undo stacks are reset and the layout runs.
    void SelectImage(int index) override;

    // ---- Undo --------------------------------------------------------------------------
    // Records the current image before a change made outside the canvas (effects); a
    // floating selection is dropped into the image first.
    void AddUndo() override;
    // Undo and Repeat drop a floating selection into the image first.
    bool Undo();
    bool Repeat();
    bool UndoEnabled() const { return history_.UndoEnabled(); }
    bool RepeatEnabled() const { return history_.RepeatEnabled(); }
    const UndoHistory& History() const { return history_; }

    // ---- Windows over the image --------------------------------------------------------
    // The adjustments window's logic on the floating selection, else on the image being
    // edited (nullptr without one). Each recomputation reaches `window` (if any) and the
    // editor's observers as ImageChanged. OK records one undo step (back to the image as it
    // was, with the selection dropped into it) and the inspector looks again; Cancel leaves
    // no undo step and the document as modified as it was. One at a time: it must be gone
    // before the next is made or the set changes.
    std::unique_ptr<ColorAdjustments> AdjustColors(IAdjustmentsObserver* window = nullptr);

    // ---- Parts -------------------------------------------------------------------------
    DocumentSession& Document() { return session_; }
    const DocumentSession& Document() const { return session_; }
    ViewController& View() { return view_; }
    const ViewController& View() const { return view_; }
    ToolControls& Tools() { return tools_; }
    const ToolControls& Tools() const { return tools_; }
    CanvasController& Canvas() { return canvas_; }
    const CanvasController& Canvas() const { return canvas_; }
    EditCommands& Edit() { return edit_; }
    const EditCommands& Edit() const { return edit_; }
    HotspotControl& Hotspot() { return hotspot_; }
    const HotspotControl& Hotspot() const { return hotspot_; }
    ImageCommands& Operations() { return operations_; }
    const ImageCommands& Operations() const { return operations_; }
    ImageListCommands& Images() { return images_; }
    const ImageListCommands& Images() const { return images_; }
    InspectorController& Inspector() { return inspector_; }
    const InspectorController& Inspector() const { return inspector_; }
    ProgramSettings& Settings() { return settings_; }
    // The status bar and progress bar, for the windows' own long work (import, conversion).
    IProgressSink& Progress() { return services_.progress; }
    const ProgramSettings& Settings() const { return settings_; }
    AnimationCommands& Animation() { return animation_; }
    const AnimationCommands& Animation() const { return animation_; }

  private:
    // Passes the adjustments' events on to their window and to the editor's observers.
    class AdjustmentsRelay final : public IAdjustmentsObserver {
      public:
        explicit AdjustmentsRelay(Editor& editor) : editor_(editor) {}
        void ImageChanged() override;
        void Closed(bool kept) override;
        IAdjustmentsObserver* window = nullptr;
        // The image as the adjustments found it, with any selection dropped into it: the
        // undo snapshot that OK records.
        std::unique_ptr<IconImage> before;

      private:
        Editor& editor_;
    };

    IconImage* EditedImage() override;
    void StrokeFinished() override;
    void SetReplaced(const std::vector<TemplateEntry>* formats) override;
    void ImagesChanged(int current, bool moved) override;
    void RedoLayout() override;
    void FinishEditing() override { canvas_.DropFloatingSelection(); }
    void HotspotMoved() override { session_.MarkModified(); }
    void ImagesEdited(int current, bool sameImage) override;
    void RecordUndo(const IconImage& before) override;
    void ImageEdited(bool sidesChanged) override;
    void ShowCurrentImage();
    void ResetUndosRepeats();
    // Undo or Repeat, when offered: drop a floating selection, then the step.
    bool StepHistory(bool offered, bool (UndoHistory::*step)(IconImage&));
    void Notify(EditorEvents::Event event) const { events_.Notify(event); }

    EditorServices services_;
    EditorEvents events_;
    ProgramSettings settings_;
    IconSet set_;
    int currentIcon_ = 0;
    UndoHistory history_;
    ToolControls tools_;
    ViewController view_;
    HotspotControl hotspot_{set_, *this, events_};
    CanvasController canvas_;
    EditCommands edit_;
    InspectorController inspector_;
    DocumentSession session_;
    ImageListCommands images_{set_, settings_.Messages(), *this};
    AnimationCommands animation_{set_, settings_.Messages(), session_, events_};
    ImageCommands operations_{*this, canvas_, tools_, services_.progress};
    AdjustmentsRelay adjustments_{*this};
};

}  // namespace iw
