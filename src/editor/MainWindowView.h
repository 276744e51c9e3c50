#pragma once
// What the core asks of the main window beyond message boxes and the status bar: the
// effects that only a window can have. Everything else the window shows (caption, menu
// checks, enabled states) it reads back from the Editor's parts when an IEditorObserver
// event names it.

#include <optional>
#include <string>

#include "document/model/IconSet.h"

namespace iw {

struct WindowSettings;

class IMainWindowView {
  public:
    virtual ~IMainWindowView() = default;
    // Use "Segoe UI" for the window's texts, or the desktop's font.
    virtual void ApplyUseFont(bool useFont) = 0;
    virtual void ShowSplash() = 0;
    // Maximised, or normal at the saved size (in twips).
    virtual void RestoreWindow(const WindowSettings& window) = 0;
    // The log list to which the writers add progress tags ("/log" on the command line).
    virtual void ShowLogList() = 0;
    // Another program asked for an icon to be edited: show the request's text.
    virtual void ShowEditRequest(const std::string& text) = 0;
    // The Save As dialog for a set of this mode: the chosen path, or nothing when cancelled.
    virtual std::optional<std::string> ChooseSavePath(FileMode mode,
                                                      const std::string& suggestedName) = 0;
};

}  // namespace iw
