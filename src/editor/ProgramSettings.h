#pragma once
// What start-up loads and exit writes back: the settings store and the message store in the
// per-user data folder, the message routine over the second, the window's settings, the
// recent-files list and the loaded templates.

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "editor/EditorObserver.h"
#include "editor/EditorSettings.h"
#include "editor/RecentFiles.h"
#include "services/core/MessageService.h"
#include "services/core/XmlStore.h"
#include "services/desktop/TemplateLibrary.h"

namespace iw {

// Where start-up finds its files. Empty members take the program's defaults: the per-user
// data folder, the program's templates beside the executable or in the installed data
// folder, and "Templates" in the data folder.
struct StartupFolders {
    std::filesystem::path dataFolder;
    std::filesystem::path programTemplates;
    std::filesystem::path userTemplates;
};

class ProgramSettings {
  public:
    ProgramSettings(IMessagePresenter& presenter, EditorEvents& events)
        : events_(events), messages_(messageStore_, presenter) {}

    // Start-up: "settings.xml" and "messages.xml" from the data folder, the language, the
    // window's settings; returns the view's (Grid, Pixelsize, FitInWindow).
    ViewState Load(const StartupFolders& folders);
    // The program's templates and the user's (a missing program folder is reported).
    void LoadTemplates();
    // The template editor saved or deleted a template: the templates are read again, so
    // the start-up dialog and the other windows list what is on disk.
    void ReloadTemplates() { LoadTemplates(); }
    // Whether the last run ended normally; "Settings\ExitOK" reads "False" from now until
    // Save, so a run that ends otherwise is known at the next start.
    bool BeginRun();
    // Exit: the view's and the window's settings, ExitOK "True", and both stores written.
    void Save(const ViewState& view);

    // The window's size before it closes: its state ("2" maximised) and size in twips.
    void SetWindowPlacement(int windowState, int widthTwips, int heightTwips);
    void SetPreviewBackground(PreviewBackground background);
    void SetShowInspector(bool show);
    // The start-up dialog's choice, written to "Settings\Startup" as it closes.
    void SetStartupAction(int action);
    // The options window's General choices, each written to its key at once:
    // "Settings\UseFont", "Settings\Splash" and "Settings\BlankIcon".
    void SetUseFont(bool useFont);
    void SetSplash(bool splash);
    void SetBlankIcon(int kind);
    // The options window's Clear Messages: every message the user silenced shows again.
    // The emptied message store is written with the settings.
    void ClearMessages() { messages_.ClearSuppressions(); }

    // The recent-files list ("NA" for an unused entry); the menu's items.
    std::array<std::string, kRecentFileCount> RecentFiles() const {
        return iw::RecentFiles(settings_);
    }
    std::vector<RecentMenuItem> RecentList() const { return LoadRecentList(settings_); }
    // A file opened or saved goes to the top of the list (see RecentFiles.h for the order).
    void AddRecentFile(const std::string& path);
    // Recent-file menu items 2 to 4 move their entry to the top; returns entry 1 ("NA").
    std::string MoveRecentFileToTop(int number);

    const WindowSettings& Window() const { return window_; }
    const XmlStore& Store() const { return settings_; }
    XmlStore& Store() { return settings_; }
    const TemplateLibrary& Templates() const { return templates_; }
    const std::filesystem::path& UserTemplatesFolder() const { return userTemplates_; }
    const std::string& Language() const { return language_; }
    // The message routine with the message store's suppression flags: every message box of
    // the core goes through it, and the windows' own core calls take it.
    MessageService& Messages() { return messages_; }

  private:
    EditorEvents& events_;
    XmlStore settings_;
    XmlStore messageStore_;
    MessageService messages_;
    TemplateLibrary templates_;
    WindowSettings window_;
    StartupFolders folders_;
    std::filesystem::path userTemplates_;
    std::string language_ = "English";
};

}  // namespace iw
