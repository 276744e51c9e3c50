#pragma once
// The main window's logic without the window: the icon set, the editor state, undo, the
// inspector, settings, templates and the document lifecycle in one object. A window owns
// one Editor, forwards its events to it and draws from its state; everything it shows can
// be read back from here after each call.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/model/IconSet.h"
#include "editor/Airbrush.h"
#include "editor/DocumentStore.h"
#include "editor/EditorSettings.h"
#include "editor/EditorState.h"
#include "editor/Geometry.h"
#include "editor/Inspector.h"
#include "editor/MainWindowView.h"
#include "editor/UndoHistory.h"
#include "editor/Zoom.h"
#include "editor/tools/StandardTools.h"
#include "services/core/MessageService.h"
#include "services/core/UserInterface.h"
#include "services/core/XmlStore.h"
#include "services/desktop/Template.h"
#include "services/desktop/TemplateLibrary.h"

namespace iw {

struct EditorServices {
    IMessagePresenter& presenter;
    IProgressSink& progress;
    ILogSink& log;
    IDocumentStore& documents;
    IMainWindowView& view;
    IRandomSource& random;
};

// Where start-up finds its files. Empty members take the program's defaults: the per-user
// data folder, the program's templates beside the executable or in the installed data
// folder, and "Templates" in the data folder.
struct StartupFolders {
    std::filesystem::path dataFolder;
    std::filesystem::path programTemplates;
    std::filesystem::path userTemplates;
};

struct StartupResult {
    bool showStartupDialog = false;  // the start-up action made nothing and no file was given
    bool logRequested = false;       // "/log" was on the command line
    bool previousRunEndedCleanly = true;
};

// What a canvas event changed, so the window repaints only what it must.
struct CanvasUpdate {
    bool imageChanged = false;   // redraw the canvas and the preview
    bool colorsChanged = false;  // repaint the colour swatches and sliders
};

// The formats a set is checked against when no template was chosen for it.
inline constexpr std::string_view kDefaultTemplateName = "Windows Application";

class Editor final : private IUndoRecorder, private IColorPicker {
  public:
    explicit Editor(EditorServices services, ToolSet tools = StandardTools());

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
    // The window unloads: the settings and the message store are written back.
    void Shutdown();

    // ---- Document lifecycle ------------------------------------------------------------
    // Ask to save: No without asking when there are no unsaved changes; otherwise "Save
    // changes to %f?" or "Save changes to untitled?" (Yes/No/Cancel). Yes saves, and a save
    // that fails or is not given a path turns the answer into Cancel. The answer is kept.
    MessageAnswer AskToSave();
    MessageAnswer LastAnswer() const { return lastAnswer_; }
    // New, open and the start-up tiles all ask first and do nothing on Cancel.
    bool NewDocument();  // one blank 32 x 32 image of 32 bits
    bool NewBlankIcon(int kind);
    bool NewCursor();          // one blank image, cursor mode, the "CreateCursor" hint
    bool NewAnimatedCursor();  // one blank image, animated cursor mode, the "CreateANI" hint
    bool NewFromTemplate(const IconTemplate& source);
    // A file that does not exist shows "This file could not be found." and changes nothing.
    // A file that cannot be read leaves a new untitled set.
    bool OpenDocument(const std::string& path);
    // The recent-files menu items 1 to 4.
    bool OpenRecent(int number);
    // Save to the file name, or ask for one (Save As) when the set has none.
    bool Save();
    // Before writing over an existing file: "The file %f already exists.  OK to overwrite?"
    // and only Yes goes on.
    bool SaveAs(const std::string& path);

    bool HasFileName() const { return !fileName_.empty(); }
    // True after new, open and save, and again after undoing back to the saved state.
    bool Unmodified() const;
    // For changes that undo does not cover (adding or removing images, properties).
    void MarkModified();
    const std::string& FileName() const { return fileName_; }
    std::string DocumentName() const;  // the file's name, or "untitled"
    std::string Caption() const;       // document name + " - Quorvale Iconwright"

    // ---- File modes --------------------------------------------------------------------
    void SwitchICOMode();
    void SwitchCURMode();
    void SwitchANIMode();
    std::string ModeMenuCaption() const;  // "&Icon" or "&Cursor"

    // ---- Images and view ---------------------------------------------------------------
    // Makes another image current; the undo stacks are reset and the layout runs.
    void SelectImage(int index);
    bool HasImage() const { return set_.Count() > 0; }
    IconImage& CurrentImage();
    const IconImage& CurrentImage() const;
    // The window's canvas area changed size: runs the layout.
    void SetViewport(ViewportSize viewport);
    void ZoomIn();
    void ZoomOut();
    void NormalZoom();
    void SetFitInWindow(bool fit);
    void ToggleGrid();
    ViewportSize CanvasSize() const;

    // ---- Canvas ------------------------------------------------------------------------
    // Pointer events in image cells (see CanvasToImage), handed to the current tool. Painting
    // tools record an undo snapshot on press; the left button paints with the foreground
    // colour and the right with the background colour.
    CanvasUpdate PointerPress(Point cell, MouseButton button, KeyModifiers modifiers = {});
    CanvasUpdate PointerMove(Point cell, KeyModifiers modifiers = {});
    CanvasUpdate PointerRelease(Point cell, KeyModifiers modifiers = {});
    // A key for the current tool; false when the tool has no use for it.
    bool KeyPress(const KeyEvent& event);
    bool Dragging() const { return stroke_.has_value(); }
    std::string StatusTextAt(Point cell) const;
    // The floating selection of Select or Text, or nullptr.
    const IFloatingSelection* FloatingSelection() const { return floating_.get(); }
    // Paints the floating selection into the image; Undo and Repeat call it first.
    bool DropFloatingSelection();

    // ---- Undo --------------------------------------------------------------------------
    // Records the current image before a change made outside the canvas (effects,
    // adjustments, paste).
    void AddUndo() override;
    bool Undo();
    bool Repeat();
    void ResetUndosRepeats();
    bool UndoEnabled() const { return history_.UndoEnabled(); }
    bool RepeatEnabled() const { return history_.RepeatEnabled(); }
    // ---- Inspector ---------------------------------------------------------------------
    void RunInspector();
    const InspectorPanel& InspectorView() const { return inspector_.Panel(); }
    // cmdFix: the fix of the state shown. Returns whether the set changed.
    bool FixInspectorProblem();
    // The images the "Show" fix points at, for the window to highlight.
    const std::vector<int>& HighlightedImages() const { return highlighted_; }
    void SetCustomFormats(bool custom);
    bool CustomFormats() const { return rules_.custom; }
    const std::vector<TemplateEntry>& RequiredFormats() const { return rules_.required; }
    void SetRequiredFormats(std::vector<TemplateEntry> formats) {
        rules_.required = std::move(formats);
    }

    // ---- Parts -------------------------------------------------------------------------
    IconSet& Set() { return set_; }
    const IconSet& Set() const { return set_; }
    EditorState& State() { return state_; }
    const EditorState& State() const { return state_; }
    WindowSettings& Window() { return window_; }
    const WindowSettings& Window() const { return window_; }
    XmlStore& SettingsStore() { return settingsStore_; }
    XmlStore& MessageStore() { return messageStore_; }
    MessageService& Messages() { return messages_; }
    TemplateLibrary& Templates() { return templates_; }
    const UndoHistory& History() const { return history_; }
    const std::string& Language() const { return language_; }
    // The "You are editing an icon for ..." request file, when one was given.
    const std::string& EditRequest() const { return editRequest_; }

  private:
    // The tool that took the press, until the release.
    struct Stroke {
        ITool* tool;
        MouseButton button;
        Point last;
        bool recorded;  // it recorded an undo snapshot: it changed the image
    };

    void StartFreshSet(FileMode mode, int widthMinus1, int heightMinus1, int bitCount, int png);
    void AfterNewSet();
    bool WriteTo(const std::string& path);
    void RunLayout();
    void DefaultRequiredFormats();
    void ShowCaption();
    void TakePickedColor(MouseButton button, PackedColor color, std::optional<int> alpha) override;
    ToolContext MakeToolContext();
    CanvasUpdate Apply(const ToolResult& result);
    void CancelStroke();

    EditorServices services_;
    XmlStore settingsStore_;
    XmlStore messageStore_;
    MessageService messages_;
    TemplateLibrary templates_;
    IconSet set_;
    EditorState state_;
    WindowSettings window_;
    UndoHistory history_;
    Inspector inspector_;
    InspectorRules rules_;
    std::vector<int> highlighted_;
    ViewportSize viewport_{800, 600};
    ToolSet tools_;
    std::optional<Stroke> stroke_;
    std::unique_ptr<IFloatingSelection> floating_;
    bool colorsPicked_ = false;

    std::string fileName_;
    std::string language_ = "English";
    std::string editRequest_;
    MessageAnswer lastAnswer_ = MessageAnswer::No;
    bool savedStateKnown_ = true;
    std::uint64_t savedStateId_ = 0;
};

}  // namespace iw
