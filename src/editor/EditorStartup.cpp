// The Editor's start-up, command line and exit.
#include "editor/CommandLine.h"
#include "editor/Editor.h"
#include "editor/EditorTexts.h"
#include "editor/ToolSettings.h"
#include "services/core/TextCatalog.h"

namespace iw {

StartupResult Editor::RunStartup(std::string_view commandLine, const StartupFolders& folders) {
    StartupResult result;
    // 1. The caption ends in " - Quorvale Iconwright".
    Notify(&IEditorObserver::CaptionChanged);

    // 2. and 3. The two stores, the settings, the font choice; the templates.
    view_.Restore(settings_.Load(folders));
    RestoreToolState(settings_.Store(), tools_);
    const WindowSettings& window = settings_.Window();
    services_.view.ApplyUseFont(window.useFont);
    settings_.LoadTemplates();

    // 4. The splash; ExitOK stays "False" until the window closes normally, so a "False"
    // found here means the last run did not.
    if (window.splash) services_.view.ShowSplash();
    result.previousRunEndedCleanly = settings_.BeginRun();

    // 5. An empty set (the marker values are constants of the model).
    canvas_.Reset();
    session_.Discard();

    // 6. The window: maximised, or normal at the saved size.
    services_.view.RestoreWindow(window);

    // 7. The start-up action.
    bool opened = false;
    if (window.startup == 1) {
        const std::string recent = settings_.RecentFiles()[0];
        if (recent != kNoRecentFile && DocumentExists(recent))
            opened = session_.OpenDocument(recent);
    } else if (window.startup == 2) {
        session_.NewBlankIcon(window.blankIcon);
    }

    // 8. The command line.
    result.logRequested = ParseCommandLine(commandLine).log;
    if (HandleCommandLine(commandLine)) opened = true;

    if (set_.Empty()) {
        session_.StartUntitled();
        result.showStartupDialog = window.startup != 1 && window.startup != 2 && !opened;
    }
    Notify(&IEditorObserver::CaptionChanged);
    return result;
}

bool Editor::HandleCommandLine(std::string_view commandLine) {
    const CommandLine command = ParseCommandLine(commandLine);
    if (command.log) services_.view.ShowLogList();
    if (command.path.empty()) return false;
    if (command.editRequest) return session_.OpenEditRequest(command.path);
    if (DocumentExists(command.path)) return session_.OpenDocument(command.path);
    settings_.Messages().ShowMessage(texts::InvalidCommand.key,
                                     GetText(texts::InvalidCommand) + "\n" + command.text,
                                     texts::kProgramTitle, MessageType::Exclamation, false);
    return false;
}

bool Editor::QueryClose() {
    return session_.AskToSave() != MessageAnswer::Cancel;
}

void Editor::Shutdown() {
    session_.EndEditRequest();
    SaveToolState(settings_.Store(), tools_.State());
    settings_.Save(view_.State());
}

}  // namespace iw
