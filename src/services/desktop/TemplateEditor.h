#pragma once
// The template editor's logic (frmEditTemplate): the list of formats being edited with its
// selected row, and the operations of the editor window as commands. The window forwards
// its buttons here, shows Rows() and follows the editor through an ITemplateEditorObserver.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "services/core/MessageService.h"
#include "services/desktop/Template.h"

namespace iw {

// One row of the editor's list as the window shows it.
struct TemplateRowText {
    std::string size;        // "16 x 16"
    std::string depth;       // "Alpha"
    std::string compressed;  // "No" or "Yes"
};

class ITemplateEditorObserver {
  public:
    virtual ~ITemplateEditorObserver() = default;
    // Rows(), SelectedRow() or UpdateLabel() changed.
    virtual void RowsChanged() {}
    // Another template is edited, or it was saved: Name(), Path(), Modified().
    virtual void TemplateChanged() {}
};

class TemplateEditor {
  public:
    static constexpr std::string_view kNewName = "NEW";

    // Editing starts with a new template. Messages go through `messages`; new templates
    // are saved into `userFolder`. Both, and the observer if any, must outlive the editor.
    TemplateEditor(MessageService& messages, std::filesystem::path userFolder,
                   ITemplateEditorObserver* observer = nullptr);

    // Starts a new template under the working name "NEW" with no entries.
    void NewTemplate();
    // Reads a template into the list. A locked template cannot be edited: "This template
    // cannot be edited." is shown and false returned, leaving the editor as it was.
    bool OpenTemplates(const IconTemplate& source);
    // Shows a template's rows without letting them change (the program's own templates):
    // every change and every save is refused with "This template cannot be edited.".
    void ViewTemplate(const IconTemplate& source);
    bool ReadOnly() const { return readOnly_; }
    // Writes the list to the template's file, one line per entry, first to last.
    bool SaveTemplates();
    // Saves under a new name, "<name>.ini" in the user's templates folder, and keeps
    // editing that file. A name that is empty, holds a path separator or a character that
    // file names cannot hold on Windows is refused.
    bool SaveTemplatesAs(std::string_view name);
    // The Save button: a template that has its file is written back; a new one is saved
    // under `name`, asking "The file %f already exists.  OK to overwrite?" before it
    // replaces a file. A name that cannot be a file name shows a message and saves nothing.
    bool Save(std::string_view name);

    // Adds a format after the last row and selects it. Refused (false) when the list holds
    // 65 entries, or a side is outside 1..256, or the depth is not 1, 4, 8, 24 or 32.
    bool AddItem(int width, int height, int bits, bool compressed);
    // The Add button with what the boxes hold: the width and height texts, the index chosen
    // in AddColorList() and in AddCompressedList(). A side that is not a whole number from 1
    // to 256 shows "Please enter an integer between 1 and 256."; a full list "You cannot add
    // anymore icons.".
    bool AddItemText(std::string_view width, std::string_view height, int depthIndex,
                     int compressedIndex);
    // Removes the selected row; the row that follows it (or the new last row) is selected.
    bool RemoveItem();
    // Moves the selected row one place up or down, keeping it selected.
    bool MoveUp();
    bool MoveDown();
    // Selects a row (-1 or a row outside the list selects none).
    void SelectRow(int row);
    void UnselectRows();
    int SelectedRow() const { return selected_; }

    // The first row to show so that the selected one is visible in a list of `visibleRows`
    // rows, given the first row shown now.
    int UpdateScrollBar(int firstShown, int visibleRows) const;
    // The caption of the size label for the selected row ("16 x 16"), "" with none.
    std::string UpdateLabel() const;
    // The choices of the depth and compressed lists, in the order of the depth indexes.
    static std::vector<std::string> AddColorList();
    static std::vector<std::string> AddCompressedList();
    // Width and height boxes take whole numbers only.
    static bool IsInteger(std::string_view text);

    static std::string DepthName(int bits);
    std::vector<TemplateRowText> Rows() const;

    const std::string& Name() const { return name_; }
    const std::string& Path() const { return path_; }
    const std::vector<TemplateEntry>& Entries() const { return entries_; }
    bool Modified() const { return modified_; }

  private:
    // False, after the message, when the template is only being viewed.
    bool Editable() const;
    void RowsChanged() const {
        if (observer_) observer_->RowsChanged();
    }
    void TemplateChanged() const {
        if (observer_) observer_->TemplateChanged();
    }

    MessageService& messages_;
    std::filesystem::path userFolder_;
    ITemplateEditorObserver* observer_;
    std::string name_ = std::string(kNewName);
    std::string path_;
    std::vector<TemplateEntry> entries_;
    int selected_ = -1;
    bool modified_ = false;
    bool readOnly_ = false;
};

// Deletes one of the user's templates after asking "Delete the template "%f"?" (Yes/No).
// The program's own templates are refused with "This template cannot be edited.".
bool DeleteTemplate(const IconTemplate& source, MessageService& messages);

}  // namespace iw
