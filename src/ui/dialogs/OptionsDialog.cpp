#include "ui/dialogs/OptionsDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "editor/BlankIcons.h"
#include "services/desktop/DesktopTexts.h"
#include "ui/UiText.h"
#include "ui/dialogs/DialogParts.h"
#include "ui/dialogs/EditTemplateDialog.h"
#include "ui/dialogs/OkCancelButtons.h"

namespace iw::ui {
namespace {

constexpr std::string_view kWindow = "frmOptions";

// The window's captions, in one place.
QString Text(std::string_view key) {
    static constexpr CaptionEntry kCaptions[] = {
        {"Caption", "Options"},
        {"tabGeneral", "General"},
        {"tabTemplates", "Templates"},
        {"fraStartup", "Start-up"},
        {"lblStartup", "&At start-up:"},
        {"optShowDialog", "Show the start-up window"},
        {"optOpenRecent", "Open the most recent file"},
        {"optBlankIcon", "Create a new blank icon"},
        {"lblBlankIcon", "&Blank icon:"},
        {"chkSplash", "Show the &splash window"},
        {"fraWindow", "Window"},
        {"chkUseFont", "Use the \"Segoe UI\" &font"},
        {"fraMessages", "Messages"},
        {"lblMessages", "Messages you chose not to see again can be shown again."},
        {"cmdClearMessages", "&Clear Messages"},
        {"colName", "Template"},
        {"colFormats", "Formats"},
        {"colLocked", "Locked"},
        {"cmdNew", "&New..."},
        {"cmdEdit", "&Edit..."},
        {"cmdDelete", "&Delete"},
        {"Compressed", "compressed"},
    };
    return CaptionFrom(kWindow, kCaptions, key);
}

QPushButton* Button(QWidget* parent, const char* name) {
    return CaptionedButton(parent, name, Text(name));
}

// A blank icon kind as the list shows it: "32 x 32, Alpha".
QString BlankIconText(int kind) {
    const BlankIconFormat format = BlankIconKind(kind);
    QString text = QStringLiteral("%1 x %1, %2")
                       .arg(format.side)
                       .arg(QStr(TemplateEditor::DepthName(format.bits)));
    if (format.png) text += QStringLiteral(", ") + Text("Compressed");
    return text;
}

}  // namespace

OptionsDialog::OptionsDialog(Editor& editor, IMainWindowView& view, QWidget* parent)
    : QDialog(parent), editor_(editor), view_(view) {
    setObjectName(QStr(kWindow));
    setWindowTitle(Text("Caption"));

    auto* tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("tabOptions"));
    tabs->addTab(MakeGeneralTab(), Text("tabGeneral"));
    tabs->addTab(MakeTemplatesTab(), Text("tabTemplates"));

    QDialogButtonBox* buttons = OkCancelButtons(*this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs, 1);
    layout->addWidget(buttons);
    resize(sizeHint().expandedTo(QSize(480, 380)));
}

QWidget* OptionsDialog::MakeGeneralTab() {
    auto* page = new QWidget(this);
    page->setObjectName(QStringLiteral("tabGeneral"));
    const WindowSettings& window = editor_.Settings().Window();

    startup_ = new QComboBox(page);
    startup_->setObjectName(QStringLiteral("cboStartup"));
    for (const char* choice : {"optShowDialog", "optOpenRecent", "optBlankIcon"})
        startup_->addItem(Text(choice));
    startup_->setCurrentIndex(window.startup == 1 || window.startup == 2 ? window.startup : 0);
    blankIcon_ = new QComboBox(page);
    blankIcon_->setObjectName(QStringLiteral("cboBlankIcon"));
    for (int kind = 0; kind < kBlankIconKinds; ++kind)
        blankIcon_->addItem(BlankIconText(kind));
    blankIcon_->setCurrentIndex(
        window.blankIcon >= 0 && window.blankIcon < kBlankIconKinds ? window.blankIcon : 0);
    splash_ = new QCheckBox(Text("chkSplash"), page);
    splash_->setObjectName(QStringLiteral("chkSplash"));
    splash_->setChecked(window.splash);
    auto* startup = new QGroupBox(Text("fraStartup"), page);
    startup->setObjectName(QStringLiteral("fraStartup"));
    auto* form = new QFormLayout(startup);
    form->addRow(Text("lblStartup"), startup_);
    form->addRow(Text("lblBlankIcon"), blankIcon_);
    form->addRow(splash_);

    useFont_ = new QCheckBox(Text("chkUseFont"), page);
    useFont_->setObjectName(QStringLiteral("chkUseFont"));
    useFont_->setChecked(window.useFont);
    auto* windowBox = new QGroupBox(Text("fraWindow"), page);
    windowBox->setObjectName(QStringLiteral("fraWindow"));
    (new QVBoxLayout(windowBox))->addWidget(useFont_);

    clearMessages_ = Button(page, "cmdClearMessages");
    connect(clearMessages_, &QPushButton::clicked, this, [this] {
        editor_.Settings().ClearMessages();
        clearMessages_->setEnabled(false);  // done: nothing is silenced any more
    });
    auto* explanation = new QLabel(Text("lblMessages"), page);
    explanation->setObjectName(QStringLiteral("lblMessages"));
    explanation->setWordWrap(true);
    auto* messages = new QGroupBox(Text("fraMessages"), page);
    messages->setObjectName(QStringLiteral("fraMessages"));
    auto* messageRow = new QHBoxLayout(messages);
    messageRow->addWidget(explanation, 1);
    messageRow->addWidget(clearMessages_, 0, Qt::AlignVCenter);

    auto* layout = new QVBoxLayout(page);
    layout->addWidget(startup);
    layout->addWidget(windowBox);
    layout->addWidget(messages);
    layout->addStretch(1);
    return page;
}

QWidget* OptionsDialog::MakeTemplatesTab() {
    auto* page = new QWidget(this);
    page->setObjectName(QStringLiteral("tabTemplates"));
    templates_ =
        FlatList(page, "lstTemplates", {Text("colName"), Text("colFormats"), Text("colLocked")});
    templates_->header()->setStretchLastSection(false);
    templates_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    templates_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    templates_->header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
    connect(templates_, &QTreeWidget::currentItemChanged, this,
            &OptionsDialog::RefreshTemplateButtons);
    connect(templates_, &QTreeWidget::itemActivated, this,
            [this] { EditTemplate(SelectedTemplate()); });

    QPushButton* create = Button(page, "cmdNew");
    edit_ = Button(page, "cmdEdit");
    delete_ = Button(page, "cmdDelete");
    connect(create, &QPushButton::clicked, this, [this] { EditTemplate(nullptr); });
    connect(edit_, &QPushButton::clicked, this, [this] { EditTemplate(SelectedTemplate()); });
    connect(delete_, &QPushButton::clicked, this, &OptionsDialog::DeleteTemplate);
    auto* side = new QVBoxLayout;
    side->addWidget(create);
    side->addWidget(edit_);
    side->addWidget(delete_);
    side->addStretch(1);

    auto* layout = new QHBoxLayout(page);
    layout->addWidget(templates_, 1);
    layout->addLayout(side);
    FillTemplates(0);
    return page;
}

void OptionsDialog::FillTemplates(int select) {
    templates_->clear();
    for (const IconTemplate& entry : editor_.Settings().Templates().Templates()) {
        auto* item =
            new QTreeWidgetItem({QStr(entry.name), QStr(entry.EntryCountText()),
                                 Tr(entry.Locked() ? texts::CompressedYes : texts::CompressedNo)});
        item->setToolTip(0, QStr(entry.path));
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        templates_->addTopLevelItem(item);
    }
    const int count = templates_->topLevelItemCount();
    if (count > 0)
        templates_->setCurrentItem(templates_->topLevelItem(std::clamp(select, 0, count - 1)));
    RefreshTemplateButtons();
}

const IconTemplate* OptionsDialog::SelectedTemplate() const {
    const int row = templates_->indexOfTopLevelItem(templates_->currentItem());
    const auto& all = editor_.Settings().Templates().Templates();
    if (row < 0 || row >= static_cast<int>(all.size())) return nullptr;
    return &all[static_cast<std::size_t>(row)];
}

void OptionsDialog::RefreshTemplateButtons() {
    const IconTemplate* selected = SelectedTemplate();
    edit_->setEnabled(selected != nullptr);
    delete_->setEnabled(selected != nullptr && !selected->Locked());
}

void OptionsDialog::EditTemplate(const IconTemplate* source) {
    ProgramSettings& settings = editor_.Settings();
    EditTemplateDialog window(settings.Messages(), settings.UserTemplatesFolder(), source, this);
    templateWindow_ = &window;
    const bool saved = window.exec() == QDialog::Accepted;
    templateWindow_ = nullptr;
    if (!saved) return;
    // The library is read again; the saved template is selected by its file.
    const std::string path = window.Editor().Path();
    settings.ReloadTemplates();
    const auto& all = settings.Templates().Templates();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&path](const IconTemplate& t) { return t.path == path; });
    FillTemplates(static_cast<int>(found - all.begin()));
}

void OptionsDialog::DeleteTemplate() {
    const IconTemplate* selected = SelectedTemplate();
    if (!selected) return;
    const int row = templates_->indexOfTopLevelItem(templates_->currentItem());
    if (!iw::DeleteTemplate(*selected, editor_.Settings().Messages())) return;
    editor_.Settings().ReloadTemplates();
    FillTemplates(row);
}

void OptionsDialog::accept() {
    ProgramSettings& settings = editor_.Settings();
    const WindowSettings before = settings.Window();
    const int startup = startup_->currentIndex();
    // A stored action this window has no choice for is kept unless another is chosen.
    if (startup != (before.startup == 1 || before.startup == 2 ? before.startup : 0))
        settings.SetStartupAction(startup);
    settings.SetBlankIcon(blankIcon_->currentIndex());
    settings.SetSplash(splash_->isChecked());
    if (useFont_->isChecked() != before.useFont) {
        settings.SetUseFont(useFont_->isChecked());
        view_.ApplyUseFont(useFont_->isChecked());
    }
    QDialog::accept();
}

}  // namespace iw::ui
