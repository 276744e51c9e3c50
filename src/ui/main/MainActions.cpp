#include "ui/main/MainActions.h"

#include <QAction>
#include <QActionGroup>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

#include "editor/FormatsCheck.h"
#include "ui/UiText.h"
#include "ui/main/MainTexts.h"

namespace iw::ui {
namespace {

namespace mt = main_texts;

constexpr int kRecentTextLength = 60;

// A recent file as its menu shows it: its number as the accelerator, then the path,
// shortened in the middle when long.
QString RecentText(int number, const std::string& path) {
    QString text = QStr(path);
    if (text.size() > kRecentTextLength) {
        const qsizetype keep = (kRecentTextLength - 3) / 2;
        text = text.left(keep) + QStringLiteral("...") + text.right(keep);
    }
    text.replace(QLatin1Char('&'), QStringLiteral("&&"));
    return QStringLiteral("&%1 %2").arg(number).arg(text);
}

}  // namespace

MainActions::MainActions(Editor& editor, QMainWindow& window)
    : QObject(&window), editor_(editor), window_(window) {
    QMenuBar* bar = window.menuBar();
    const auto menu = [&](const TextId& text) {
        QMenu* m = bar->addMenu(Tr(text));
        m->setObjectName(QStr(text.key));
        return m;
    };
    MakeFileMenu(menus_[static_cast<int>(MenuId::File)] = menu(mt::File));
    MakeEditMenu(menus_[static_cast<int>(MenuId::Edit)] = edit_ = menu(mt::Edit));
    MakeViewMenu(menus_[static_cast<int>(MenuId::View)] = menu(mt::View));
    mode_ = bar->addMenu(QStr(editor.Document().ModeMenuCaption()));
    mode_->setObjectName(QStringLiteral("mnuMode"));
    menus_[static_cast<int>(MenuId::Mode)] = mode_;
    MakeModeMenu(mode_);
    MakeHelpMenu(menus_[static_cast<int>(MenuId::Help)] = menu(mt::Help));
    MakeToolBar();
    RefreshUndo();
    RefreshView();
    RefreshMode();
    RefreshRecent();
    RefreshWindowSettings();
}

QMenu* MainActions::MenuFor(MenuId id) {
    QMenu*& slot = menus_[static_cast<std::size_t>(id)];
    if (slot) return slot;
    const TextId& text = id == MenuId::Image ? mt::Image : mt::Tools;
    slot = new QMenu(Tr(text), &window_);
    slot->setObjectName(QStr(text.key));
    // In its place: before the first menu that follows it and exists already.
    QAction* before = nullptr;
    for (std::size_t next = static_cast<std::size_t>(id) + 1; next < menus_.size() && !before;
         ++next) {
        if (menus_[next]) before = menus_[next]->menuAction();
    }
    window_.menuBar()->insertMenu(before, slot);
    return slot;
}

QAction* MainActions::AddCommand(MenuId id, const char* name, const TextId& text,
                                 std::function<void()> command) {
    return Add(MenuFor(id), name, text, std::move(command));
}

QAction* MainActions::Add(QMenu* menu, const char* name, const TextId& text,
                          std::function<void()> command) {
    auto* action = new QAction(Tr(text), &window_);
    action->setObjectName(QString::fromLatin1(name));
    connect(action, &QAction::triggered, this, [command = std::move(command)] { command(); });
    menu->addAction(action);
    return action;
}

void MainActions::MakeFileMenu(QMenu* menu) {
    DocumentSession& document = editor_.Document();
    new_ = Add(menu, "mnuNew", mt::New, [&document] { document.NewDocument(); });
    new_->setShortcut(QKeySequence::New);
    new_->setIcon(UiIcon("new"));
    open_ = Add(menu, "mnuOpen", mt::Open, [this] { emit OpenRequested(); });
    open_->setShortcut(QKeySequence::Open);
    open_->setIcon(UiIcon("open"));
    // Closing leaves a new untitled icon: the editor always has a set to show.
    QAction* close = Add(menu, "mnuClose", mt::Close, [&document] { document.NewDocument(); });
    close->setShortcut(QKeySequence::Close);
    menu->addSeparator();
    save_ = Add(menu, "mnuSave", mt::Save, [&document] { document.Save(); });
    save_->setShortcut(QKeySequence::Save);
    save_->setIcon(UiIcon("save"));
    QAction* saveAs = Add(menu, "mnuSaveAs", mt::SaveAs, [this] { emit SaveAsRequested(); });
    // Some desktops bind no key to Save As; Ctrl+Shift+S is what users expect there.
    saveAs->setShortcuts(QKeySequence::keyBindings(QKeySequence::SaveAs).isEmpty()
                             ? QList<QKeySequence>{QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)}
                             : QKeySequence::keyBindings(QKeySequence::SaveAs));
    recentSeparator_ = menu->addSeparator();
    for (int number = 1; number <= 4; ++number) {
        const std::string name = "mnuRecent" + std::to_string(number);
        recent_[static_cast<std::size_t>(number - 1)] =
            Add(menu, name.c_str(), {name, mt::kWindow, ""},
                [&document, number] { document.OpenRecent(number); });
    }
    menu->addSeparator();
    QAction* exit = Add(menu, "mnuExit", mt::Exit, [this] { emit ExitRequested(); });
    exit->setShortcut(QKeySequence::Quit);
    exit->setMenuRole(QAction::QuitRole);
}

void MainActions::MakeEditMenu(QMenu* menu) {
    undo_ = Add(menu, "mnuUndo", mt::Undo, [this] { editor_.Undo(); });
    undo_->setShortcut(QKeySequence::Undo);
    undo_->setIcon(UiIcon("undo"));
    repeat_ = Add(menu, "mnuRepeat", mt::Repeat, [this] { editor_.Repeat(); });
    repeat_->setShortcuts(QKeySequence::Redo);
    repeat_->setIcon(UiIcon("redo"));
}

void MainActions::MakeViewMenu(QMenu* menu) {
    ViewController& view = editor_.View();
    zoomIn_ = Add(menu, "mnuZoomIn", mt::ZoomIn, [&view] { view.ZoomIn(); });
    zoomIn_->setShortcuts(
        {QKeySequence(QKeySequence::ZoomIn), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    zoomIn_->setIcon(UiIcon("zoom-in"));
    zoomOut_ = Add(menu, "mnuZoomOut", mt::ZoomOut, [&view] { view.ZoomOut(); });
    zoomOut_->setShortcut(QKeySequence::ZoomOut);
    zoomOut_->setIcon(UiIcon("zoom-out"));
    normalZoom_ = Add(menu, "mnuNormalZoom", mt::NormalZoom, [&view] { view.NormalZoom(); });
    normalZoom_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_0));
    normalZoom_->setIcon(UiIcon("zoom-normal"));
    auto_ =
        Add(menu, "mnuAuto", mt::Auto, [this, &view] { view.SetFitInWindow(auto_->isChecked()); });
    auto_->setCheckable(true);
    auto_->setIcon(UiIcon("zoom-fit"));
    menu->addSeparator();
    grid_ = Add(menu, "mnuGrid", mt::Grid, [&view] { view.ToggleGrid(); });
    grid_->setCheckable(true);
    grid_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_G));
    grid_->setIcon(UiIcon("grid"));
    menu->addSeparator();

    QMenu* background = menu->addMenu(Tr(mt::PreviewBackground));
    background->setObjectName(QStr(mt::PreviewBackground.key));
    auto* group = new QActionGroup(this);
    const std::array<std::pair<const char*, TextId>, 3> choices = {{
        {"mnuPreviewGrid", mt::PreviewGrid},
        {"mnuPreviewWhite", mt::PreviewWhite},
        {"mnuPreviewTransparent", mt::PreviewTransparent},
    }};
    for (std::size_t i = 0; i < choices.size(); ++i) {
        const auto choice = static_cast<PreviewBackground>(i);
        QAction* action = Add(background, choices[i].first, choices[i].second, [this, choice] {
            editor_.Settings().SetPreviewBackground(choice);
            emit WindowSettingsChanged();
        });
        action->setCheckable(true);
        group->addAction(action);
        preview_[i] = action;
    }
    inspector_ = Add(menu, "mnuInspector", mt::Inspector, [this] {
        editor_.Settings().SetShowInspector(inspector_->isChecked());
        emit WindowSettingsChanged();
    });
    inspector_->setCheckable(true);
}

void MainActions::MakeModeMenu(QMenu* menu) {
    DocumentSession& document = editor_.Document();
    auto* group = new QActionGroup(this);
    const std::array<std::tuple<const char*, TextId, void (DocumentSession::*)()>, 3> modes = {{
        {"mnuICO", mt::ModeICO, &DocumentSession::SwitchICOMode},
        {"mnuCUR", mt::ModeCUR, &DocumentSession::SwitchCURMode},
        {"mnuANI", mt::ModeANI, &DocumentSession::SwitchANIMode},
    }};
    for (std::size_t i = 0; i < modes.size(); ++i) {
        const auto [name, text, command] = modes[i];
        QAction* action = Add(menu, name, text, [&document, command] { (document.*command)(); });
        action->setCheckable(true);
        group->addAction(action);
        modes_[i] = action;
    }
    menu->addSeparator();
    checkIcon_ =
        Add(menu, "mnuCheckIcon", mt::CheckIcon, [this] { RunFormatsCheck(editor_.Inspector()); });
}

void MainActions::MakeHelpMenu(QMenu* menu) {
    QAction* topics = Add(menu, "mnuHelpTopics", mt::HelpTopics, [this] { emit HelpRequested(); });
    topics->setShortcut(QKeySequence::HelpContents);
    topics->setIcon(UiIcon("help"));
    menu->addSeparator();
    QAction* about = Add(menu, "mnuAbout", mt::About, [this] { emit AboutRequested(); });
    about->setMenuRole(QAction::AboutRole);
}

void MainActions::MakeToolBar() {
    toolBar_ = window_.addToolBar(Tr(mt::MainToolBar));
    toolBar_->setObjectName(QStringLiteral("tbrMain"));
    toolBar_->setMovable(false);
    toolBar_->setIconSize(QSize(24, 24));
    for (QAction* action : {new_, open_, save_})
        toolBar_->addAction(action);
    toolBar_->addSeparator();
    for (QAction* action : {undo_, repeat_})
        toolBar_->addAction(action);
    toolBar_->addSeparator();
    toolBar_->addAction(grid_);
    toolBar_->addSeparator();
    for (QAction* action : {zoomIn_, zoomOut_, normalZoom_, auto_})
        toolBar_->addAction(action);
    // Tool tips say the command and its key, without the menu's accelerator marks.
    for (QAction* action : toolBar_->actions()) {
        QString tip = action->text().remove(QLatin1Char('&')).remove(QStringLiteral("..."));
        if (!action->shortcut().isEmpty())
            tip +=
                QStringLiteral(" (%1)").arg(action->shortcut().toString(QKeySequence::NativeText));
        action->setToolTip(tip);
    }
}

void MainActions::RefreshUndo() {
    undo_->setEnabled(editor_.UndoEnabled());
    repeat_->setEnabled(editor_.RepeatEnabled());
}

void MainActions::RefreshView() {
    const ViewState& state = editor_.View().State();
    grid_->setChecked(state.ShowGrid);
    auto_->setChecked(state.FitInWindow);
    const bool image = editor_.HasImage();
    for (QAction* action : {zoomIn_, zoomOut_, normalZoom_})
        action->setEnabled(image);
}

void MainActions::RefreshMode() {
    mode_->setTitle(QStr(editor_.Document().ModeMenuCaption()));
    modes_[static_cast<std::size_t>(editor_.Document().Mode())]->setChecked(true);
    checkIcon_->setEnabled(FormatsCheckOffered(editor_.Set()));
}

void MainActions::RefreshRecent() {
    for (QAction* action : recent_)
        action->setVisible(false);
    bool any = false;
    for (const RecentMenuItem& item : editor_.Settings().RecentList()) {
        if (item.number < 1 || item.number > 4) continue;
        QAction* action = recent_[static_cast<std::size_t>(item.number - 1)];
        action->setText(RecentText(item.number, item.path));
        action->setToolTip(QStr(item.path));
        action->setVisible(true);
        any = true;
    }
    recentSeparator_->setVisible(any);
}

void MainActions::RefreshWindowSettings() {
    const WindowSettings& window = editor_.Settings().Window();
    preview_[static_cast<std::size_t>(window.previewBackground)]->setChecked(true);
    inspector_->setChecked(window.showInspector);
}

}  // namespace iw::ui
