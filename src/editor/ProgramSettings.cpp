#include "editor/ProgramSettings.h"

#include "editor/NumberText.h"
#include "services/core/DataFolder.h"
#include "services/desktop/ProgramFolders.h"

namespace iw {

ViewState ProgramSettings::Load(const StartupFolders& folders) {
    folders_ = folders;
    const std::filesystem::path data =
        folders.dataFolder.empty() ? EnsureUserDataFolder() : folders.dataFolder;
    if (!data.empty()) {
        settings_.Load(data / "settings.xml");
        messageStore_.Load(data / "messages.xml");
    }
    language_ = "English";
    ViewState view;
    LoadSettings(settings_, view, window_);
    LoadStartupSettings(settings_, window_);
    return view;
}

void ProgramSettings::LoadTemplates() {
    const std::filesystem::path program = folders_.programTemplates.empty()
                                              ? ProgramTemplatesFolder(ExecutableFolder())
                                              : folders_.programTemplates;
    userTemplates_ =
        folders_.userTemplates.empty() ? EnsureUserTemplatesFolder() : folders_.userTemplates;
    templates_.LoadAll(program, userTemplates_, messages_);
}

bool ProgramSettings::BeginRun() {
    const bool cleanly = settings_.GetBool(settings::ExitOK, true);
    settings_.SetBool(settings::ExitOK, false);
    return cleanly;
}

void ProgramSettings::Save(const ViewState& view) {
    SaveSettings(settings_, view, window_);
    settings_.SetBool(settings::ExitOK, true);
    settings_.Save();
    messageStore_.Save();
}

void ProgramSettings::SetWindowPlacement(int windowState, int widthTwips, int heightTwips) {
    window_.windowState = windowState;
    window_.widthTwips = widthTwips;
    window_.heightTwips = heightTwips;
}

void ProgramSettings::SetPreviewBackground(PreviewBackground background) {
    window_.previewBackground = background;
}

void ProgramSettings::SetShowInspector(bool show) {
    window_.showInspector = show;
}

void ProgramSettings::SetStartupAction(int action) {
    window_.startup = action;
    settings_.SetValue(settings::Startup, NumberText(action));
}

void ProgramSettings::SetUseFont(bool useFont) {
    window_.useFont = useFont;
    settings_.SetBool(settings::UseFont, useFont);
}

void ProgramSettings::SetSplash(bool splash) {
    window_.splash = splash;
    settings_.SetValue(settings::Splash, splash ? "1" : "0");
}

void ProgramSettings::SetBlankIcon(int kind) {
    window_.blankIcon = kind;
    settings_.SetValue(settings::BlankIcon, NumberText(kind));
}

void ProgramSettings::AddRecentFile(const std::string& path) {
    iw::AddRecentFile(settings_, path);
    events_.Notify(&IEditorObserver::RecentFilesChanged);
}

std::string ProgramSettings::MoveRecentFileToTop(int number) {
    std::string path = iw::MoveRecentFileToTop(settings_, number);
    events_.Notify(&IEditorObserver::RecentFilesChanged);
    return path;
}

}  // namespace iw
