#pragma once
// The document lifecycle of the main window: the file name and whether there are unsaved
// changes, ask to save, new sets, open, save and save as, the recent files, the file mode
// and edit requests from other programs.

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "document/model/IconSet.h"
#include "editor/EditRequestFile.h"
#include "editor/EditorObserver.h"
#include "editor/EditorServices.h"
#include "editor/ImageAttributes.h"
#include "editor/ProgramSettings.h"
#include "editor/UndoHistory.h"
#include "services/core/Texts.h"
#include "services/desktop/Template.h"

namespace iw {

// What the session asks of the editor that holds it.
class IDocumentHost {
  public:
    virtual ~IDocumentHost() = default;
    // A new or opened set has replaced the old one: the editor starts over on its first
    // image. `formats` are those of the template it was made from, or nullptr.
    virtual void SetReplaced(const std::vector<TemplateEntry>* formats) = 0;
    // The image a cursor file is written from.
    virtual int CurrentIcon() const = 0;
    // Before a save: what is still floating above the image goes into it.
    virtual void FinishEditing() = 0;
};

class DocumentSession {
  public:
    DocumentSession(IconSet& set, const UndoHistory& history, ProgramSettings& settings,
                    const EditorServices& services, IDocumentHost& host, EditorEvents& events);

    // Ask to save: No without asking when there are no unsaved changes; otherwise "Save
    // changes to %f?" or "Save changes to untitled?" (Yes/No/Cancel). Yes saves, and a save
    // that fails or is not given a path turns the answer into Cancel. The answer is kept.
    MessageAnswer AskToSave();
    MessageAnswer LastAnswer() const { return lastAnswer_; }

    // New, open and the start-up tiles all ask first and do nothing on Cancel.
    bool NewDocument();  // one blank 32 x 32 image of 32 bits
    bool NewBlankIcon(int kind);
    // The start-up dialog's first tile: one blank image of the chosen sides, depth and
    // storage. False, changing nothing, for attributes out of range.
    bool NewIcon(const ImageAttributes& attributes);
    bool NewCursor();          // one blank image, cursor mode, the "CreateCursor" hint
    bool NewAnimatedCursor();  // one blank image, animated cursor mode, the "CreateANI" hint
    bool NewFromTemplate(const IconTemplate& source);
    // The folder icon wizard made `made`: after asking to save, it becomes the new untitled
    // icon, then "CreateFolderIcon" tells how to put it on a folder. An empty set is refused.
    bool NewFolderIcon(const IconSet& made);
    // A file that does not exist shows "This file could not be found." and changes nothing.
    // A file that cannot be read leaves a new untitled set.
    bool OpenDocument(const std::string& path);
    // A Windows program or library first asks "You are opening a file other than an icon
    // file.  Although Iconwright can read these files, it will be saved as an icon file.
    // Continue?" (Yes/No; No opens nothing), then opens as any file: its first icon group
    // (or, without groups, what the salvage reader finds). The set then has no file name of
    // its own (ProgramPath() names the program, for the caption): Save asks for a path.
    //
    // The group picker: after opening a program, ListProgramGroups / ProgramFile list its
    // groups; OpenProgramGroup opens the one chosen (in the language chosen), asking the
    // question only when the set does not already come from that program, or never when
    // `confirmed` (another window opened from the picker, whose question was answered).
    bool OpenProgramGroup(const std::string& path, const GroupChoice& choice,
                          bool confirmed = false);
    // True once after a program was opened whole (its first group, not a picked one): the
    // window then offers the program's other groups.
    bool TakeGroupOffer() { return std::exchange(groupOffer_, false); }
    // The recent-files menu items 1 to 4.
    bool OpenRecent(int number);
    // Another program asks for an icon to be edited (docs/edit-requests.md): the request
    // file names the program ("Request\Program"), shown to the user, and the icon file
    // ("Request\File"), which is opened, or made as a new blank icon or cursor when it does
    // not exist yet; Save writes it. A file that is no request shows "This file cannot be
    // found or the command is invalid." and the path. Returns whether the request was taken;
    // one that cannot be (ask-to-save cancelled, an unreadable icon) is answered at once.
    bool OpenEditRequest(const std::string& requestFile);
    // The request ends (the editor closes, another document takes its place, Save As writes
    // elsewhere, another request comes): its answer is written into the request file.
    void EndEditRequest();
    // Save to the file name, or ask for one (Save As) when the set has none.
    bool Save();
    // Before writing over an existing file: "The file %f already exists.  OK to overwrite?"
    // and only Yes goes on.
    bool SaveAs(const std::string& path);

    // The mode menu. Switching to another mode marks the set modified.
    void SwitchICOMode() { SwitchMode(FileMode::ICO); }
    void SwitchCURMode() { SwitchMode(FileMode::CUR); }
    void SwitchANIMode() { SwitchMode(FileMode::ANI); }
    // For changes that undo does not cover (adding or removing images, properties).
    void MarkModified() { savedStateKnown_ = false; }

    bool HasFileName() const { return !fileName_.empty(); }
    const std::string& FileName() const { return fileName_; }
    // The program or library the set was read from while it has no file name of its own.
    const std::string& ProgramPath() const { return programPath_; }
    // The file's name, the program's name, or "untitled".
    std::string DocumentName() const;
    std::string Caption() const;  // document name + " - Quorvale Iconwright"
    FileMode Mode() const { return set_.mode; }
    std::string ModeMenuCaption() const;  // "&Icon" or "&Cursor"
    // True after new, open and save, and again after undoing back to the saved state.
    bool Unmodified() const;
    // The request file while an edit request is in force, else "".
    const std::string& EditRequest() const;
    // "You are editing an icon for " and the program while a request is in force, else "".
    std::string EditRequestText() const;

  private:
    friend class Editor;  // start-up uses Discard and StartUntitled

    // Start-up: the set is emptied and the file name forgotten, without asking.
    void Discard();
    // Start-up when nothing else made a set: a new untitled one, without asking.
    void StartUntitled();
    bool Ask() { return AskToSave() != MessageAnswer::Cancel; }
    void StartFreshSet(FileMode mode, const TemplateEntry& format);
    // A cursor or an animated cursor of one blank image, then its hint.
    bool NewCursorSet(FileMode mode, const TextId& hint);
    void Replaced(const std::vector<TemplateEntry>* formats = nullptr);
    // Takes the request's icon file as the document.
    bool TakeRequestedFile(const std::string& target);
    // Asks, opens and takes the file (`choice` set: a program's group).
    bool OpenFile(const std::string& path, const std::optional<GroupChoice>& choice,
                  bool confirmed = false);
    // The "OpenEXE" question for a program file; true to go on (at once for other files).
    bool ConfirmProgram(const std::string& path);
    // The name Save As offers: the file's, or the program's with the mode's extension.
    std::string SuggestedSaveName() const;
    bool WriteTo(const std::string& path);
    void SwitchMode(FileMode mode);
    void MarkSaved();
    CoreContext Context() const;

    IconSet& set_;
    const UndoHistory& history_;
    ProgramSettings& settings_;
    EditorServices services_;
    IDocumentHost& host_;
    EditorEvents& events_;

    std::string fileName_;
    std::string programPath_;
    std::optional<EditRequestFile> request_;
    MessageAnswer lastAnswer_ = MessageAnswer::No;
    bool savedStateKnown_ = true;
    bool groupOffer_ = false;
    std::uint64_t savedStateId_ = 0;
};

}  // namespace iw
