#include "ui/main/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QUrl>
#include <QVBoxLayout>

#include "codec/zlib/Compression.h"
#include "editor/EditorSettings.h"
#include "editor/PaletteStrip.h"
#include "services/core/CompressionNotice.h"
#include "ui/UiText.h"
#include "ui/adapters/HelpLocation.h"
#include "ui/adapters/LogList.h"
#include "ui/adapters/MessageWindow.h"
#include "ui/adapters/StatusProgress.h"
#include "ui/dialogs/AboutDialog.h"
#include "ui/dialogs/SplashScreen.h"
#include "ui/dialogs/StartupDialog.h"
#include "ui/main/ColorBox.h"
#include "ui/main/InspectorBox.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainTexts.h"
#include "ui/main/ToolBox.h"
#include "ui/main/WindowFeatures.h"
#include "ui/widgets/CanvasArea.h"
#include "ui/widgets/CanvasWidget.h"
#include "ui/widgets/IconListView.h"
#include "ui/widgets/PaletteStrip.h"
#include "ui/widgets/PreviewWidget.h"

namespace iw::ui {
namespace {

namespace mt = main_texts;

constexpr int kLeftColumnWidth = 196;
constexpr int kRightColumnWidth = 288;  // a 256-pixel preview and its frame
constexpr int kLogHeight = 140;
const char* const kPreferredFont = "Segoe UI";

}  // namespace

MainWindow::MainWindow(MainWindowOptions options)
    : options_(std::move(options)), desktopFont_(QApplication::font()) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowIcon(UiIcon("iconwright"));
    setAcceptDrops(true);

    if (!options_.presenter) {
        ownPresenter_ = std::make_unique<MessagePresenter>(this);
        options_.presenter = ownPresenter_.get();
    }
    files_ = options_.files;
    if (!files_) {
        ownFiles_ = std::make_unique<DialogFileChooser>(this);
        files_ = ownFiles_.get();
    }
    pixelText_ = new QLabel(statusBar());
    pixelText_->setObjectName(QStringLiteral("lblPixel"));
    pixelText_->setMinimumWidth(
        fontMetrics().horizontalAdvance(QStringLiteral("R 255, G 255, B 255, A 255 (Fuchsia)")));
    statusBar()->addWidget(pixelText_);
    progress_ = std::make_unique<StatusProgress>(*statusBar());
    zoomText_ = new QLabel(statusBar());
    zoomText_->setObjectName(QStringLiteral("lblZoom"));
    statusBar()->addPermanentWidget(zoomText_);
    log_ = new LogList(this);
    addDockWidget(Qt::BottomDockWidgetArea, log_);
    log_->hide();

    editor_ = std::make_unique<Editor>(
        EditorServices{*options_.presenter, *progress_, *log_, documents_, *this, random_});
    picture_ = std::make_unique<CurrentPicture>(*editor_);
    BuildLayout();
    ConnectActions();
    InstallWindowFeatures(*this);
    editor_->AddObserver(*this);
}

MainWindow::~MainWindow() {
    editor_->RemoveObserver(*this);
    // The widgets that hold the editor go before it does.
    delete takeCentralWidget();
}

MainWindowOptions MainWindow::OptionsForAnotherWindow() const {
    MainWindowOptions options = options_;
    if (ownPresenter_) options.presenter = nullptr;
    if (ownFiles_) options.files = nullptr;
    options.splash = false;
    return options;
}

void MainWindow::BuildLayout() {
    Editor& editor = *editor_;
    actions_ = new MainActions(editor, *this);

    // Left: the tools, their options and the colours.
    auto* left = new QWidget(this);
    left->setObjectName(QStringLiteral("fraLeft"));
    left->setFixedWidth(kLeftColumnWidth);
    auto* leftLayout = new QVBoxLayout(left);
    leftLayout->setContentsMargins(4, 4, 4, 4);
    tools_ = new ToolBox(editor, left);
    colors_ = new ColorBox(editor, left);
    leftLayout->addWidget(tools_);
    leftLayout->addWidget(colors_);
    leftLayout->addStretch(1);

    // Middle: the edit-request banner over the canvas.
    canvas_ = new CanvasWidget(editor, *picture_);
    area_ = new CanvasArea(editor, canvas_);
    // The request's program in bold, how to return to it beneath.
    auto* bannerBox = new QFrame(this);
    bannerBox->setObjectName(QStringLiteral("fraEditRequest"));
    bannerBox->setStyleSheet(
        QStringLiteral("#fraEditRequest { background: #fff4cc; border-bottom: 1px solid #e0c860; }"
                       "#fraEditRequest QLabel { color: #3b3000; }"));
    banner_ = new QLabel(bannerBox);
    banner_->setObjectName(QStringLiteral("lblEditRequest"));
    banner_->setWordWrap(true);
    banner_->setTextFormat(Qt::PlainText);  // a program name is not markup
    QFont bold = banner_->font();
    bold.setBold(true);
    banner_->setFont(bold);
    auto* hint = new QLabel(Tr(mt::EditRequestHint), bannerBox);
    hint->setObjectName(QStr(mt::EditRequestHint.key));
    hint->setWordWrap(true);
    auto* bannerLayout = new QVBoxLayout(bannerBox);
    bannerLayout->setContentsMargins(8, 6, 8, 6);
    bannerLayout->setSpacing(2);
    bannerLayout->addWidget(banner_);
    bannerLayout->addWidget(hint);
    bannerBox->hide();
    auto* middle = new QWidget(this);
    auto* middleLayout = new QVBoxLayout(middle);
    middleLayout->setContentsMargins(0, 0, 0, 0);
    middleLayout->setSpacing(0);
    middleLayout->addWidget(bannerBox);
    middleLayout->addWidget(area_, 1);

    // Right: the preview, the images and the inspector.
    auto* right = new QWidget(this);
    right->setObjectName(QStringLiteral("fraRight"));
    right->setFixedWidth(kRightColumnWidth);
    auto* rightLayout = new QVBoxLayout(right);
    rightLayout->setContentsMargins(4, 4, 4, 4);
    auto* previewBox = new QGroupBox(Tr(mt::PreviewCaption), right);
    previewBox->setObjectName(QStr(mt::PreviewCaption.key));
    preview_ = new PreviewWidget(*picture_, previewBox);
    auto* previewLayout = new QVBoxLayout(previewBox);
    previewLayout->addWidget(preview_, 0, Qt::AlignCenter);
    auto* iconsBox = new QGroupBox(Tr(mt::IconsCaption), right);
    iconsBox->setObjectName(QStr(mt::IconsCaption.key));
    icons_ = new IconListView(editor, iconsBox);
    auto* iconsLayout = new QVBoxLayout(iconsBox);
    iconsLayout->addWidget(icons_);
    inspector_ = new InspectorBox(editor, right);
    rightLayout->addWidget(previewBox);
    rightLayout->addWidget(iconsBox, 1);
    rightLayout->addWidget(inspector_);

    auto* columns = new QHBoxLayout;
    columns->setSpacing(0);
    columns->addWidget(left);
    columns->addWidget(middle, 1);
    columns->addWidget(right);

    palette_ = new PaletteStrip(this);
    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(columns, 1);
    layout->addWidget(palette_);
    setCentralWidget(central);

    connect(canvas_, &CanvasWidget::StatusTextChanged, pixelText_, &QLabel::setText);
    connect(canvas_, &CanvasWidget::StrokeEnded, this, [this] {
        if (paletteStale_) RefreshPalette();
    });
    connect(palette_, &PaletteStrip::ForeColorPicked, this,
            [this](PackedColor color) { editor_->Tools().SetForeColor(color); });
    connect(palette_, &PaletteStrip::BackColorPicked, this,
            [this](PackedColor color) { editor_->Tools().SetBackColor(color); });
    resize(1100, 760);
}

void MainWindow::ConnectActions() {
    connect(actions_, &MainActions::OpenRequested, this, [this] { OpenFile(); });
    connect(actions_, &MainActions::SaveAsRequested, this, [this] { SaveFileAs(); });
    connect(actions_, &MainActions::ExitRequested, this, &QWidget::close);
    connect(actions_, &MainActions::AboutRequested, this, [this] {
        AboutDialog about(this);
        about.exec();
    });
    connect(actions_, &MainActions::HelpRequested, this, &MainWindow::ShowHelp);
    connect(actions_, &MainActions::WindowSettingsChanged, this, &MainWindow::ApplyWindowSettings);
    ApplyWindowSettings();
}

// ---- Start-up -----------------------------------------------------------------------------

StartupResult MainWindow::Start(const QString& commandLine) {
    const StartupResult result = editor_->RunStartup(StdStr(commandLine), options_.folders);
    ApplyWindowSettings();
    if (splash_) {
        splash_->finish(this);
        splash_.release()->deleteLater();
    }
    ReportMissingCompressionLibrary(editor_->Settings().Messages(), IsZlibLoaded());
    return result;
}

void MainWindow::ShowStartupDialog() {
    StartupDialog dialog(
        *editor_, [this] { return OpenFile(); }, this);
    dialog.exec();
}

// ---- File commands with dialogs ----------------------------------------------------------

bool MainWindow::OpenFile() {
    const std::optional<std::string> path = files_->ChooseOpenPath();
    return path && editor_->Document().OpenDocument(*path);
}

bool MainWindow::SaveFileAs() {
    DocumentSession& document = editor_->Document();
    const std::optional<std::string> path = ChooseSavePath(
        document.Mode(), document.HasFileName() ? document.FileName() : document.DocumentName());
    return path && document.SaveAs(*path);
}

void MainWindow::ShowHelp() {
    const QString page = HelpPage();
    if (!page.isEmpty()) QDesktopServices::openUrl(QUrl::fromLocalFile(page));
}

// ---- IMainWindowView ---------------------------------------------------------------------

void MainWindow::ApplyUseFont(bool useFont) {
    if (useFont && QFontDatabase::hasFamily(QString::fromLatin1(kPreferredFont))) {
        QFont font(QString::fromLatin1(kPreferredFont));
        font.setPointSizeF(desktopFont_.pointSizeF());
        QApplication::setFont(font);
    } else {
        QApplication::setFont(desktopFont_);
    }
}

void MainWindow::ShowSplash() {
    if (!options_.splash) return;
    splash_ = std::make_unique<SplashScreen>();
    splash_->show();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void MainWindow::RestoreWindow(const WindowSettings& window) {
    if (window.Maximised()) {
        showMaximized();
        return;
    }
    QSize size(TwipsToPixels(window.widthTwips), TwipsToPixels(window.heightTwips));
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect available = screen->availableGeometry();
        size = size.boundedTo(available.size());
        setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, available));
    } else {
        resize(size);
    }
    showNormal();
}

void MainWindow::ShowLogList() {
    log_->show();
    resizeDocks({log_}, {kLogHeight}, Qt::Vertical);
}

void MainWindow::ShowEditRequest(const std::string& text) {
    banner_->setText(QStr(text));
    banner_->parentWidget()->setVisible(!text.empty());
}

std::optional<std::string> MainWindow::ChooseSavePath(FileMode mode,
                                                      const std::string& suggestedName) {
    return files_->ChooseSavePath(mode, suggestedName);
}

// ---- IEditorObserver ---------------------------------------------------------------------

void MainWindow::CaptionChanged() {
    // The core's caption with Qt's modified marker after the document's name.
    const DocumentSession& document = editor_->Document();
    QString name = QStr(document.DocumentName());
    name.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    QString caption = QStr(document.Caption());
    caption.replace(0, QStr(document.DocumentName()).size(), name + QStringLiteral("[*]"));
    setWindowTitle(caption);
    setWindowModified(!document.Unmodified());
}

void MainWindow::ModeChanged() {
    actions_->RefreshMode();
    inspector_->InspectorChanged();
    canvas_->update();
    CaptionChanged();
}

void MainWindow::SetChanged() {
    icons_->SetChanged();
    actions_->RefreshMode();
    inspector_->InspectorChanged();
    CaptionChanged();
}

void MainWindow::CurrentImageChanged() {
    picture_->Invalidate();
    canvas_->ImageChanged();
    preview_->ImageChanged();
    icons_->CurrentImageChanged();
    RefreshPalette();
}

void MainWindow::ImageChanged() {
    picture_->Invalidate();
    canvas_->ImageChanged();
    preview_->ImageChanged();
    icons_->ImageChanged();
    // An 8-bit image's colours are counted again once the stroke is over, not at every move.
    if (editor_->Canvas().Pressed()) {
        paletteStale_ = true;
    } else {
        RefreshPalette();
    }
    CaptionChanged();
}

void MainWindow::ColorsChanged() {
    colors_->ColorsChanged();
}

void MainWindow::ToolChanged() {
    tools_->ToolChanged();
    canvas_->ToolChanged();
}

void MainWindow::ViewChanged() {
    canvas_->ViewChanged();
    actions_->RefreshView();
    zoomText_->setText(QStr(ReplacePlaceholder(GetText(mt::ZoomText), "%d",
                                               std::to_string(editor_->View().State().PixelSize))));
}

void MainWindow::UndoStateChanged() {
    actions_->RefreshUndo();
    CaptionChanged();
}

void MainWindow::InspectorChanged() {
    inspector_->InspectorChanged();
    icons_->InspectorChanged();
}

void MainWindow::RecentFilesChanged() {
    actions_->RefreshRecent();
}

void MainWindow::RefreshPalette() {
    paletteStale_ = false;
    palette_->SetColors(PaletteStripColors(editor_->CurrentImage()));
}

void MainWindow::ApplyWindowSettings() {
    const WindowSettings& window = editor_->Settings().Window();
    preview_->SetBackground(window.previewBackground);
    inspector_->setVisible(window.showInspector);
    actions_->RefreshWindowSettings();
}

// ---- Window events -----------------------------------------------------------------------

void MainWindow::closeEvent(QCloseEvent* event) {
    // Long work is yielding to the event loop: it finishes before the window may close.
    if (progress_->Yielding() || (!shutDown_ && !editor_->QueryClose())) {
        event->ignore();
        return;
    }
    if (!shutDown_) {
        const int state = isMaximized() ? WindowSettings::kMaximised : (isMinimized() ? 1 : 0);
        const QSize size = normalGeometry().isValid() ? normalGeometry().size() : this->size();
        editor_->Settings().SetWindowPlacement(state, PixelsToTwips(size.width()),
                                               PixelsToTwips(size.height()));
        editor_->Shutdown();
        shutDown_ = true;
    }
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile()) {
            event->acceptProposedAction();
            return;
        }
    }
}

// Several files dropped: the first is opened (one set is edited at a time) and the status
// bar says so.
void MainWindow::dropEvent(QDropEvent* event) {
    QStringList files;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile()) files << url.toLocalFile();
    }
    if (files.isEmpty()) return;
    event->acceptProposedAction();
    if (files.size() > 1) statusBar()->showMessage(Tr(mt::DroppedSeveral), 5000);
    editor_->Document().OpenDocument(StdStr(files.front()));
}

}  // namespace iw::ui
