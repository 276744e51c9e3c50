// The Editor's start-up, command line and exit.
#include <algorithm>
#include <cctype>
#include <filesystem>

#include "editor/Editor.h"
#include "editor/EditorTexts.h"
#include "editor/RecentFiles.h"
#include "services/core/DataFolder.h"
#include "services/core/TextCatalog.h"
#include "services/desktop/ProgramFolders.h"

namespace iw {
namespace {

constexpr std::string_view kLogSwitch = "/log";

std::string Trimmed(std::string_view text) {
    const auto blank = [](unsigned char c) { return std::isspace(c) != 0; };
    while (!text.empty() && blank(static_cast<unsigned char>(text.front())))
        text.remove_prefix(1);
    while (!text.empty() && blank(static_cast<unsigned char>(text.back())))
        text.remove_suffix(1);
    return std::string(text);
}

bool EndsWithNoCase(std::string_view text, std::string_view tail) {
    if (text.size() < tail.size()) return false;
    return std::equal(tail.begin(), tail.end(),
                      text.end() - static_cast<std::ptrdiff_t>(tail.size()), [](char a, char b) {
                          return std::tolower(static_cast<unsigned char>(a)) ==
                                 std::tolower(static_cast<unsigned char>(b));
                      });
}

// The path the command line names: without the "/log" switch, trimmed, and without the
// quotes a shell puts round a path with blanks.
std::string PathOf(std::string commandLine) {
    for (std::size_t at; (at = commandLine.find(kLogSwitch)) != std::string::npos;)
        commandLine.erase(at, kLogSwitch.size());
    commandLine = Trimmed(commandLine);
    if (commandLine.size() >= 2 && commandLine.front() == '"' && commandLine.back() == '"')
        commandLine = commandLine.substr(1, commandLine.size() - 2);
    return commandLine;
}

bool Exists(const std::string& path) {
    std::error_code ec;
    return !path.empty() && std::filesystem::is_regular_file(path, ec);
}

}  // namespace

StartupResult Editor::RunStartup(std::string_view commandLine, const StartupFolders& folders) {
    StartupResult result;
    // 1. The caption ends in " - Quorvale Iconwright".
    ShowCaption();

    // 2. The settings store and the message store in the per-user data folder.
    const std::filesystem::path data =
        folders.dataFolder.empty() ? EnsureUserDataFolder() : folders.dataFolder;
    if (!data.empty()) {
        settingsStore_.Load(data / "settings.xml");
        messageStore_.Load(data / "messages.xml");
    }
    language_ = "English";

    // 3. The settings; the font choice.
    LoadSettings(settingsStore_, state_, window_);
    LoadStartupSettings(settingsStore_, window_);
    services_.view.ApplyUseFont(window_.useFont);
    const std::filesystem::path programTemplates = folders.programTemplates.empty()
                                                       ? ProgramTemplatesFolder(ExecutableFolder())
                                                       : folders.programTemplates;
    const std::filesystem::path userTemplates =
        folders.userTemplates.empty() ? EnsureUserTemplatesFolder() : folders.userTemplates;
    templates_.LoadAll(programTemplates, userTemplates, messages_);

    // 4. The splash; ExitOK stays "False" until the window closes normally, so a "False"
    // found here means the last run did not.
    if (window_.splash) services_.view.ShowSplash();
    result.previousRunEndedCleanly = settingsStore_.GetBool(settings::ExitOK, true);
    settingsStore_.SetBool(settings::ExitOK, false);

    // 5. An empty set (the marker values are constants of the model).
    set_.Clear();
    fileName_.clear();
    DefaultRequiredFormats();

    // 6. The window: maximised, or normal at the saved size.
    services_.view.RestoreWindow(window_);

    // 7. The start-up action.
    bool opened = false;
    if (window_.startup == 1) {
        const std::string recent = RecentFile(settingsStore_, 1);
        if (recent != kNoRecentFile && Exists(recent)) opened = OpenDocument(recent);
    } else if (window_.startup == 2) {
        NewBlankIcon(window_.blankIcon);
    }

    // 8. The command line.
    const std::string trimmed = Trimmed(commandLine);
    result.logRequested = trimmed.find(kLogSwitch) != std::string::npos;
    if (HandleCommandLine(trimmed)) opened = true;

    if (set_.Empty()) {
        StartFreshSet(FileMode::ICO, 31, 31, 32, 0);
        AfterNewSet();
        result.showStartupDialog = window_.startup != 1 && window_.startup != 2 && !opened;
    }
    ShowCaption();
    return result;
}

bool Editor::HandleCommandLine(std::string_view commandLine) {
    const std::string trimmed = Trimmed(commandLine);
    if (trimmed.find(kLogSwitch) != std::string::npos) services_.view.ShowLogList();
    const std::string path = PathOf(trimmed);
    if (path.empty()) return false;
    if (EndsWithNoCase(path, ".xml")) {
        // An edit request: another program wants an icon edited for it. The request file
        // names the program ("Request\Program") and the icon ("Request\File").
        editRequest_ = path;
        XmlStore request;
        request.Load(path);
        services_.view.ShowEditRequest(GetText(texts::EditingFor) +
                                       request.GetValue("Request\\Program", ""));
        const std::string icon = request.GetValue("Request\\File", "");
        return Exists(icon) && OpenDocument(icon);
    }
    if (Exists(path)) return OpenDocument(path);
    messages_.ShowMessage(texts::InvalidCommand.key,
                          GetText(texts::InvalidCommand) + "\n" + trimmed, texts::kProgramTitle,
                          MessageType::Exclamation, false);
    return false;
}

bool Editor::QueryClose() {
    return AskToSave() != MessageAnswer::Cancel;
}

void Editor::Shutdown() {
    SaveSettings(settingsStore_, state_, window_);
    settingsStore_.SetBool(settings::ExitOK, true);
    settingsStore_.Save();
    messageStore_.Save();
}

}  // namespace iw
