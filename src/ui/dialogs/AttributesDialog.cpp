#include "ui/dialogs/AttributesDialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

#include "ui/UiText.h"
#include "ui/dialogs/OkCancelButtons.h"

namespace iw::ui {
namespace {

constexpr std::string_view kWindow = "frmAttributes";

QString Text(std::string_view key, std::string_view text) {
    return Caption(kWindow, key, text);
}

struct DepthChoice {
    int bits;
    const char* key;
    const char* text;
};
constexpr std::array<DepthChoice, 5> kDepths = {{
    {1, "optDepth1", "&Monochrome (1 bit)"},
    {4, "optDepth4", "1&6 colours (4 bits)"},
    {8, "optDepth8", "&256 colours (8 bits)"},
    {24, "optDepth24", "&True colour (24 bits)"},
    {32, "optDepth32", "True colour with a&lpha (32 bits)"},
}};

constexpr std::array<int, 8> kCommonSides = {16, 20, 24, 32, 40, 48, 64, 256};

}  // namespace

AttributesDialog::AttributesDialog(ImageListCommands& images, Purpose purpose,
                                   const ImageAttributes& start, QWidget* parent)
    : QDialog(parent), images_(images), chosen_(start) {
    setObjectName(QString::fromUtf8(kWindow.data(), kWindow.size()));
    switch (purpose) {
        case Purpose::AddFormat:
            setWindowTitle(Text("Caption", "Add Format"));
            break;
        case Purpose::ChangeAttributes:
            setWindowTitle(Text("CaptionChange", "Change Attributes"));
            break;
        case Purpose::NewIcon:
            setWindowTitle(Text("CaptionNew", "New Icon"));
            break;
    }

    // The size: a common square size, or any width and height typed.
    sizes_ = new QComboBox(this);
    sizes_->setObjectName(QStringLiteral("cboSize"));
    sizes_->addItem(Text("cboSizeOther", "Other"));
    for (const int side : kCommonSides)
        sizes_->addItem(QStringLiteral("%1 x %1").arg(side), side);
    width_ = new QLineEdit(QString::number(start.width), this);
    width_->setObjectName(QStringLiteral("txtWidth"));
    height_ = new QLineEdit(QString::number(start.height), this);
    height_->setObjectName(QStringLiteral("txtHeight"));
    for (QLineEdit* side : {width_, height_}) {
        side->setMaxLength(3);
        side->setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 16);
    }
    if (start.width == start.height) {
        const int row = sizes_->findData(start.width);
        sizes_->setCurrentIndex(row < 0 ? 0 : row);
    }
    connect(sizes_, &QComboBox::activated, this, &AttributesDialog::SizePicked);
    const auto typed = [this] {
        const int row = sizes_->findData(width_->text().toInt());
        sizes_->setCurrentIndex(width_->text() == height_->text() && row >= 0 ? row : 0);
    };
    connect(width_, &QLineEdit::textEdited, this, typed);
    connect(height_, &QLineEdit::textEdited, this, typed);

    auto* sizeBox = new QGroupBox(Text("fraSize", "Size"), this);
    auto* sizeForm = new QFormLayout(sizeBox);
    sizeForm->addRow(Text("lblSize", "&Size:"), sizes_);
    sizeForm->addRow(Text("lblWidth", "&Width:"), width_);
    sizeForm->addRow(Text("lblHeight", "&Height:"), height_);

    // The depth: a control array of option buttons tagged with their bit count.
    auto* depthBox = new QGroupBox(Text("fraDepth", "Colours"), this);
    auto* depthLayout = new QVBoxLayout(depthBox);
    auto* group = new QButtonGroup(this);
    for (const DepthChoice& depth : kDepths) {
        auto* option = new QRadioButton(Text(depth.key, depth.text), depthBox);
        option->setObjectName(QStringLiteral("optDepth"));
        option->setProperty("tag", QString::number(depth.bits));
        option->setChecked(depth.bits == start.bits);
        group->addButton(option);
        depthLayout->addWidget(option);
        depths_.push_back(option);
    }
    compressed_ = new QCheckBox(Text("chkCompressed", "&Compressed (PNG)"), this);
    compressed_->setObjectName(QStringLiteral("chkCompressed"));
    compressed_->setChecked(start.compressed);

    QDialogButtonBox* buttons = OkCancelButtons(*this);

    auto* columns = new QHBoxLayout;
    columns->addWidget(sizeBox, 0, Qt::AlignTop);
    columns->addWidget(depthBox);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns);
    layout->addWidget(compressed_);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void AttributesDialog::SizePicked(int row) {
    const QVariant side = sizes_->itemData(row);
    if (!side.isValid()) return;
    width_->setText(side.toString());
    height_->setText(side.toString());
}

// A side out of range is reported by the core and its box takes the focus again.
void AttributesDialog::accept() {
    for (QLineEdit* side : {width_, height_}) {
        const std::optional<int> value = images_.SideEntry(StdStr(side->text().trimmed()));
        if (!value) {
            side->setFocus();
            side->selectAll();
            return;
        }
        (side == width_ ? chosen_.width : chosen_.height) = *value;
    }
    for (const QRadioButton* option : depths_) {
        if (option->isChecked()) chosen_.bits = option->property("tag").toInt();
    }
    chosen_.compressed = compressed_->isChecked();
    QDialog::accept();
}

}  // namespace iw::ui
