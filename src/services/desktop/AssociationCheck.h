#pragma once
// The check the main window runs after start-up: is the program still the default editor
// of its file types? And the settings behind it, which the file types window (frmFileType)
// shows as three boxes.

#include <array>

#include "services/core/MessageService.h"
#include "services/core/XmlStore.h"
#include "services/desktop/FileAssociations.h"

namespace iw {

// For each type whose setting ("Settings\CheckICO", "Settings\CheckCUR", "Settings\CheckANI";
// on unless set to False) is on and whose question the user has not turned off, asks the
// associations; when the program is not the default, asks the type's question ("Iconwright
// is currently not your default editor for icons.  Would you like to make it the default
// editor?") and registers the type on Yes. A type whose setting is off is neither read nor
// asked about; a turned-off question is not asked and changes nothing.
void CheckFileAssociations(IFileAssociations& associations, const XmlStore& settings,
                           MessageService& messages);

// The file types window's logic: its boxes for "ico", "cur" and "ani", in that order.
class FileTypePresenter {
  public:
    explicit FileTypePresenter(XmlStore& settings) : settings_(settings) {}
    // The three start-up check settings as the boxes show them.
    std::array<bool, 3> Load() const;
    // Stores the boxes (written to disk with the other settings).
    void Save(const std::array<bool, 3>& checked);
    // OK: stores the boxes, then makes the program the default editor of each checked type
    // it is not the default of yet. False when a type could not be registered.
    bool Ok(const std::array<bool, 3>& checked, IFileAssociations& associations);

  private:
    XmlStore& settings_;
};

}  // namespace iw
