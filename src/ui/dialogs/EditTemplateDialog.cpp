#include "ui/dialogs/EditTemplateDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "services/desktop/DesktopTexts.h"
#include "ui/UiText.h"
#include "ui/dialogs/DialogParts.h"

namespace iw::ui {
namespace {

constexpr std::string_view kWindow = "frmEditTemplate";
constexpr int kAlphaIndex = 4;  // the depth list's default: 32 bits

// The window's captions, in one place.
QString Text(std::string_view key) {
    static constexpr CaptionEntry kCaptions[] = {
        {"Caption", "Edit Template"},
        {"lblName", "&Name:"},
        {"colSize", "Size"},
        {"colColors", "Colors"},
        {"colCompressed", "Compressed"},
        {"fraAdd", "New format"},
        {"lblWidth", "&Width:"},
        {"lblHeight", "&Height:"},
        {"lblColors", "&Colors:"},
        {"lblCompressed", "Co&mpressed:"},
        {"cmdAdd", "&Add"},
        {"cmdRemove", "&Remove"},
        {"cmdMoveUp", "Move &Up"},
        {"cmdMoveDown", "Move &Down"},
        {"cmdSave", "&Save"},
    };
    return CaptionFrom(kWindow, kCaptions, key);
}

QPushButton* Button(QWidget* parent, const char* name) {
    return CaptionedButton(parent, name, Text(name));
}

QLineEdit* SideBox(QWidget* parent, const char* name) {
    auto* box = new QLineEdit(QStringLiteral("32"), parent);
    box->setObjectName(QString::fromLatin1(name));
    // Whole numbers only; the editor checks the range when the format is added.
    box->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{1,3}")), box));
    box->setMaxLength(3);
    box->setMaximumWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 16);
    return box;
}

QComboBox* ListBox(QWidget* parent, const char* name, const std::vector<std::string>& items) {
    auto* box = new QComboBox(parent);
    box->setObjectName(QString::fromLatin1(name));
    for (const std::string& item : items)
        box->addItem(QStr(item));
    return box;
}

}  // namespace

EditTemplateDialog::EditTemplateDialog(MessageService& messages,
                                       const std::filesystem::path& userFolder,
                                       const IconTemplate* source, QWidget* parent)
    : QDialog(parent), editor_(messages, userFolder, this) {
    setObjectName(QStr(kWindow));

    name_ = new QLineEdit(this);
    name_->setObjectName(QStringLiteral("txtName"));
    auto* nameLabel = new QLabel(Text("lblName"), this);
    nameLabel->setBuddy(name_);

    rows_ =
        FlatList(this, "lstFormats", {Text("colSize"), Text("colColors"), Text("colCompressed")});
    rows_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    rows_->setMinimumSize(320, 220);
    connect(rows_, &QTreeWidget::currentItemChanged, this, [this] {
        if (!filling_) editor_.SelectRow(rows_->indexOfTopLevelItem(rows_->currentItem()));
    });

    remove_ = Button(this, "cmdRemove");
    moveUp_ = Button(this, "cmdMoveUp");
    moveDown_ = Button(this, "cmdMoveDown");
    connect(remove_, &QPushButton::clicked, this, [this] { editor_.RemoveItem(); });
    connect(moveUp_, &QPushButton::clicked, this, [this] { editor_.MoveUp(); });
    connect(moveDown_, &QPushButton::clicked, this, [this] { editor_.MoveDown(); });
    size_ = new QLabel(this);
    size_->setObjectName(QStringLiteral("lblSize"));
    auto* side = new QVBoxLayout;
    side->addWidget(remove_);
    side->addWidget(moveUp_);
    side->addWidget(moveDown_);
    side->addSpacing(8);
    side->addWidget(size_);
    side->addStretch(1);
    auto* listRow = new QHBoxLayout;
    listRow->addWidget(rows_, 1);
    listRow->addLayout(side);

    // The format to add.
    width_ = SideBox(this, "txtWidth");
    height_ = SideBox(this, "txtHeight");
    colors_ = ListBox(this, "cboColors", TemplateEditor::AddColorList());
    colors_->setCurrentIndex(kAlphaIndex);
    compressed_ = ListBox(this, "cboCompressed", TemplateEditor::AddCompressedList());
    add_ = Button(this, "cmdAdd");
    connect(add_, &QPushButton::clicked, this, &EditTemplateDialog::Add);
    add_->setDefault(true);  // Enter in the boxes adds the format
    auto* entry = new QGridLayout;
    const auto labelled = [&](int column, const char* label, QWidget* field) {
        auto* caption = new QLabel(Text(label), this);
        caption->setBuddy(field);
        entry->addWidget(caption, 0, column);
        entry->addWidget(field, 1, column);
    };
    labelled(0, "lblWidth", width_);
    entry->addWidget(new QLabel(QStringLiteral("x"), this), 1, 1);
    labelled(2, "lblHeight", height_);
    labelled(3, "lblColors", colors_);
    labelled(4, "lblCompressed", compressed_);
    entry->addWidget(add_, 1, 5);
    entry->setColumnStretch(6, 1);

    locked_ = new QLabel(Tr(texts::TemplateLocked), this);
    locked_->setObjectName(QStringLiteral("lblLocked"));

    auto* buttons = new QDialogButtonBox(this);
    save_ = Button(this, "cmdSave");
    buttons->addButton(save_, QDialogButtonBox::AcceptRole);
    QPushButton* cancel =
        buttons->addButton(Tr({"cmdCancel", "Constants", "Cancel"}), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(save_, &QPushButton::clicked, this, &EditTemplateDialog::Save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(locked_);
    bottom->addStretch(1);
    bottom->addWidget(buttons);

    auto* nameRow = new QHBoxLayout;
    nameRow->addWidget(nameLabel);
    nameRow->addWidget(name_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(nameRow);
    layout->addLayout(listRow, 1);
    layout->addLayout(entry);
    layout->addLayout(bottom);

    if (!source) {
        editor_.NewTemplate();
    } else if (!editor_.OpenTemplates(*source)) {
        editor_.ViewTemplate(*source);  // told already: shown, not changed
    }
    resize(sizeHint());
}

void EditTemplateDialog::RowsChanged() {
    filling_ = true;
    rows_->clear();
    for (const TemplateRowText& row : editor_.Rows()) {
        rows_->addTopLevelItem(
            new QTreeWidgetItem({QStr(row.size), QStr(row.depth), QStr(row.compressed)}));
    }
    if (QTreeWidgetItem* selected = rows_->topLevelItem(editor_.SelectedRow())) {
        rows_->setCurrentItem(selected);
        rows_->scrollToItem(selected);
    }
    filling_ = false;
    size_->setText(QStr(editor_.UpdateLabel()));
    RefreshButtons();
}

void EditTemplateDialog::TemplateChanged() {
    name_->setText(editor_.Path().empty() && !editor_.ReadOnly() ? QString()
                                                                 : QStr(editor_.Name()));
    name_->setPlaceholderText(QStr(editor_.Name()));
    setWindowTitle(Text("Caption") + QStringLiteral(" - ") + QStr(editor_.Name()));
    RefreshButtons();
}

void EditTemplateDialog::RefreshButtons() {
    const bool editable = !editor_.ReadOnly();
    const int selected = editor_.SelectedRow();
    const int count = static_cast<int>(editor_.Entries().size());
    // Only a new template takes its name here; a saved one keeps its file.
    name_->setEnabled(editable && editor_.Path().empty());
    for (QWidget* field :
         std::initializer_list<QWidget*>{width_, height_, colors_, compressed_, add_, save_})
        field->setEnabled(editable);
    remove_->setEnabled(editable && selected >= 0);
    moveUp_->setEnabled(editable && selected > 0);
    moveDown_->setEnabled(editable && selected >= 0 && selected + 1 < count);
    locked_->setVisible(!editable);
}

void EditTemplateDialog::Add() {
    editor_.AddItemText(StdStr(width_->text()), StdStr(height_->text()), colors_->currentIndex(),
                        compressed_->currentIndex());
}

void EditTemplateDialog::Save() {
    if (editor_.Save(StdStr(name_->text().trimmed()))) accept();
}

}  // namespace iw::ui
