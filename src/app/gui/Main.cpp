// iconwright: the editor. Checks that there is a display to show it on, then starts the
// main window with the command line (a file to open, "/log", or an edit request ending in
// ".xml").
//
// ICONWRIGHT_QUIT_AFTER_FIRST_PAINT=1 makes the program quit once the canvas has painted its
// first frame after start-up: a testing aid that lets a benchmark time start-up.
#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "services/core/Texts.h"
#include "ui/UiText.h"
#include "ui/adapters/CommandLineText.h"
#include "ui/desktop/ProgramAssociations.h"
#include "ui/main/MainWindow.h"
#include "ui/widgets/CanvasWidget.h"

namespace {

bool HasEnv(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0';
}

// Without a display Qt would fail with its platform plugin's error; say what to do instead.
bool DisplayAvailable() {
    if (HasEnv("QT_QPA_PLATFORM") || HasEnv("DISPLAY") || HasEnv("WAYLAND_DISPLAY")) return true;
    const iw::TextId kNoDisplay{
        "NoDisplay", "Constants",
        "iconwright: no display found (DISPLAY and WAYLAND_DISPLAY are not set). To try it "
        "without one: xvfb-run -a iconwright FILE"};
    std::fprintf(stderr, "%s\n", iw::GetText(kNoDisplay).c_str());
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    if (!DisplayAvailable()) return 2;
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Iconwright"));
    QApplication::setOrganizationName(QStringLiteral("Quorvale"));
    QApplication::setApplicationVersion(QStringLiteral(IW_VERSION));
    QApplication::setWindowIcon(iw::ui::UiIcon("iconwright"));
    QApplication::setDesktopFileName(QStringLiteral("iconwright"));

    iw::ui::MainWindow window;
    const iw::StartupResult started =
        window.Start(iw::ui::EditorCommandLine(QApplication::arguments()));
    if (HasEnv("ICONWRIGHT_QUIT_AFTER_FIRST_PAINT")) {
        // The first frame the event loop paints shows what start-up made.
        QObject::connect(window.Canvas(), &iw::ui::CanvasWidget::Painted, &app,
                         &QCoreApplication::quit, Qt::QueuedConnection);
        window.Canvas()->update();
    } else {
        // The window is up: is the program still the default editor of its file types?
        iw::ui::CheckAssociationsAtStartup(window.GetEditor(), *iw::ui::ProgramAssociations());
        if (started.showStartupDialog) window.ShowStartupDialog();
    }
    return QApplication::exec();
}
