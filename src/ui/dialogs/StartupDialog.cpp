#include "ui/dialogs/StartupDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/UiText.h"
#include "ui/dialogs/AttributesDialog.h"

namespace iw::ui {
namespace {

constexpr std::string_view kWindow = "frmStartup";
constexpr int kTileIcon = 40;

QString Text(std::string_view key, std::string_view text) {
    return Caption(kWindow, key, text);
}

}  // namespace

StartupDialog::StartupDialog(Editor& editor, std::function<bool()> openFile, QWidget* parent)
    : QDialog(parent), editor_(editor) {
    setObjectName(QString::fromUtf8(kWindow.data(), kWindow.size()));
    setWindowTitle(Text("Caption", "Welcome to Iconwright"));
    DocumentSession& document = editor.Document();

    auto* tiles = new QHBoxLayout;
    tiles->addWidget(Tile("cmdNewIcon", "new", Text("cmdNewIcon", "New Icon"),
                          [&document] { return document.NewDocument(); }));
    tiles->addWidget(Tile("cmdNewSize", "new-size", Text("cmdNewSize", "New Icon of\nAny Size..."),
                          [this] { return NewIconOfAnySize(); }));
    tiles->addWidget(Tile("cmdNewCursor", "new-cursor", Text("cmdNewCursor", "New Cursor"),
                          [&document] { return document.NewCursor(); }));
    tiles->addWidget(Tile("cmdNewANI", "new-ani", Text("cmdNewANI", "New Animated\nCursor"),
                          [&document] { return document.NewAnimatedCursor(); }));
    tiles->addWidget(Tile("cmdOpen", "open", Text("cmdOpen", "Open..."), std::move(openFile)));

    // Templates: a new set with every format of the chosen one.
    templates_ = new QListWidget(this);
    templates_->setObjectName(QStringLiteral("lstTemplates"));
    for (const IconTemplate& entry : editor.Settings().Templates().Templates()) {
        auto* item = new QListWidgetItem(
            QStr(entry.name) + QStringLiteral("  (%1)").arg(QStr(entry.EntryCountText())));
        item->setToolTip(QStr(entry.path));
        templates_->addItem(item);
    }
    // Recent files.
    recent_ = new QListWidget(this);
    recent_->setObjectName(QStringLiteral("lstRecent"));
    for (const RecentMenuItem& file : editor.Settings().RecentList()) {
        auto* item = new QListWidgetItem(QFileInfo(QStr(file.path)).fileName());
        item->setToolTip(QStr(file.path));
        item->setData(Qt::UserRole, file.number);
        recent_->addItem(item);
    }

    auto* lists = new QHBoxLayout;
    lists->addWidget(ListBox(Text("fraTemplates", "New from a template"), templates_, "cmdTemplate",
                             Text("cmdTemplate", "&Create"), &StartupDialog::CreateFromTemplate));
    lists->addWidget(ListBox(Text("fraRecent", "Recent files"), recent_, "cmdOpenRecent",
                             Text("cmdOpenRecent", "O&pen"), &StartupDialog::OpenRecent));

    // The start-up choice.
    startup_ = new QComboBox(this);
    startup_->setObjectName(QStringLiteral("cboStartup"));
    startup_->addItem(Text("optShowDialog", "Show this window"));
    startup_->addItem(Text("optOpenRecent", "Open the most recent file"));
    startup_->addItem(Text("optBlankIcon", "Create a new blank icon"));
    const int choice = editor.Settings().Window().startup;
    startup_->setCurrentIndex(choice == 1 || choice == 2 ? choice : 0);
    auto* startupLabel = new QLabel(Text("lblStartup", "&At start-up:"), this);
    startupLabel->setBuddy(startup_);
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* close =
        buttons->addButton(Tr({"cmdClose", "Constants", "Close"}), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("cmdClose"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(startupLabel);
    bottom->addWidget(startup_);
    bottom->addStretch(1);
    bottom->addWidget(buttons);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(tiles);
    layout->addSpacing(6);
    layout->addLayout(lists, 1);
    layout->addLayout(bottom);
    resize(sizeHint().expandedTo(QSize(640, 420)));
}

QGroupBox* StartupDialog::ListBox(const QString& title, QListWidget* list, const char* name,
                                  const QString& text, void (StartupDialog::*command)()) {
    if (list->count() > 0) list->setCurrentRow(0);
    auto* button = new QPushButton(text, this);
    button->setObjectName(QString::fromLatin1(name));
    button->setEnabled(list->count() > 0);
    connect(button, &QPushButton::clicked, this, command);
    connect(list, &QListWidget::itemActivated, this, command);
    auto* box = new QGroupBox(title, this);
    auto* layout = new QVBoxLayout(box);
    layout->addWidget(list);
    layout->addWidget(button, 0, Qt::AlignRight);
    return box;
}

QToolButton* StartupDialog::Tile(const char* name, std::string_view icon, const QString& text,
                                 std::function<bool()> command) {
    auto* tile = new QToolButton(this);
    tile->setObjectName(QString::fromLatin1(name));
    tile->setText(text);
    tile->setIcon(UiIcon(icon));
    tile->setIconSize(QSize(kTileIcon, kTileIcon));
    tile->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    tile->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    tile->setMinimumHeight(kTileIcon + 3 * fontMetrics().height() + 12);
    connect(tile, &QToolButton::clicked, this, [this, command] { Run(command); });
    return tile;
}

void StartupDialog::Run(const std::function<bool()>& command) {
    if (command()) accept();
}

bool StartupDialog::NewIconOfAnySize() {
    AttributesDialog attributes(editor_.Images(), AttributesDialog::Purpose::NewIcon,
                                ImageAttributes{}, this);
    return attributes.exec() == QDialog::Accepted &&
           editor_.Document().NewIcon(attributes.Chosen());
}

void StartupDialog::CreateFromTemplate() {
    const int row = templates_->currentRow();
    const auto& all = editor_.Settings().Templates().Templates();
    if (row < 0 || row >= static_cast<int>(all.size())) return;
    const IconTemplate& chosen = all[static_cast<std::size_t>(row)];
    Run([this, &chosen] { return editor_.Document().NewFromTemplate(chosen); });
}

void StartupDialog::OpenRecent() {
    const QListWidgetItem* item = recent_->currentItem();
    if (!item) return;
    const int number = item->data(Qt::UserRole).toInt();
    Run([this, number] { return editor_.Document().OpenRecent(number); });
}

void StartupDialog::done(int result) {
    editor_.Settings().SetStartupAction(startup_->currentIndex());
    QDialog::done(result);
}

}  // namespace iw::ui
