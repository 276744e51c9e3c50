#include "ui/colors/ColorsDialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/UiText.h"
#include "ui/colors/HsvField.h"
#include "ui/dialogs/OkCancelButtons.h"
#include "ui/widgets/ColorSwatch.h"

namespace iw::ui {
namespace {

constexpr std::string_view kWindow = "frmColors";

QString Text(std::string_view key, std::string_view text) {
    return Caption(kWindow, key, text);
}

}  // namespace

ColorsDialog::ColorsDialog(PackedColor start, int alpha, bool withAlpha, QWidget* parent)
    : QDialog(parent), picker_(start, alpha), withAlpha_(withAlpha) {
    setObjectName(QStringLiteral("frmColors"));
    setWindowTitle(Text("Caption", "Colors"));

    field_ = new HsvField(this);
    hue_ = new HueStrip(this);
    connect(field_, &HsvField::Picked, this, [this](double s, double v) {
        picker_.SetSaturationValue(s, v);
        Refresh();
    });
    connect(hue_, &HueStrip::Picked, this, [this](double hue) {
        picker_.SetHue(hue);
        Refresh();
    });

    // Old above new, as one pair of swatches.
    old_ = new ColorSwatch(this);
    old_->setObjectName(QStringLiteral("picOld"));
    new_ = new ColorSwatch(this);
    new_->setObjectName(QStringLiteral("picNew"));
    for (ColorSwatch* swatch : {old_, new_})
        swatch->setFixedSize(64, 32);
    old_->SetColor(picker_.Original(), withAlpha_ ? picker_.OriginalAlpha() : 255);
    old_->setToolTip(Text("picOld", "Click to go back to this colour"));
    connect(old_, &ColorSwatch::Clicked, this, [this] {
        picker_.Revert();
        Refresh();
    });
    auto* swatches = new QGridLayout;
    swatches->setVerticalSpacing(0);
    auto* newLabel = new QLabel(Text("lblNew", "New"), this);
    newLabel->setObjectName(QStringLiteral("lblNew"));
    auto* oldLabel = new QLabel(Text("lblCurrent", "Current"), this);
    oldLabel->setObjectName(QStringLiteral("lblCurrent"));
    swatches->addWidget(newLabel, 0, 0);
    swatches->addWidget(new_, 0, 1);
    swatches->addWidget(old_, 1, 1);
    swatches->addWidget(oldLabel, 1, 0);

    auto* entries = new QGridLayout;
    entries->setHorizontalSpacing(6);
    boxes_[0] = {Channel::Red, AddEntry(entries, 0, "Red", "lblRed", "&Red:")};
    boxes_[1] = {Channel::Green, AddEntry(entries, 1, "Green", "lblGreen", "&Green:")};
    boxes_[2] = {Channel::Blue, AddEntry(entries, 2, "Blue", "lblBlue", "&Blue:")};
    boxes_[3] = {Channel::Alpha, AddEntry(entries, 3, "Alpha", "lblAlpha", "&Alpha:")};
    for (const Box& box : boxes_) {
        const Channel channel = box.channel;
        QLineEdit* edit = box.edit;
        edit->setMaxLength(3);
        connect(edit, &QLineEdit::editingFinished, this, [this, channel, edit] {
            picker_.SetChannelText(channel, StdStr(edit->text()));
            Refresh();
        });
    }
    if (!withAlpha_) {
        boxes_[3].edit->hide();
        entries->itemAtPosition(3, 0)->widget()->hide();
    }
    long_ = AddEntry(entries, 4, "Long", "lblLong", "&Long:");
    hex_ = AddEntry(entries, 5, "Hex", "lblHex", "&Hex:");
    long_->setMaxLength(8);
    hex_->setMaxLength(7);
    connect(long_, &QLineEdit::editingFinished, this,
            [this] { Entered(long_, &ColorPicker::SetLongText); });
    connect(hex_, &QLineEdit::editingFinished, this,
            [this] { Entered(hex_, &ColorPicker::SetHexText); });

    auto* side = new QVBoxLayout;
    side->addLayout(swatches);
    side->addSpacing(12);
    side->addLayout(entries);
    side->addStretch(1);

    auto* body = new QHBoxLayout;
    body->addWidget(field_, 1);
    body->addWidget(hue_);
    body->addSpacing(8);
    body->addLayout(side);

    QDialogButtonBox* buttons = OkCancelButtons(*this);
    // Enter finishes a box's entry; only a click (or Enter on OK itself) closes.
    for (QAbstractButton* button : buttons->buttons()) {
        auto* push = static_cast<QPushButton*>(button);
        push->setDefault(false);
        push->setAutoDefault(false);
    }

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(body, 1);
    layout->addWidget(buttons);
    Refresh();
}

QLineEdit* ColorsDialog::AddEntry(QGridLayout* grid, int row, const char* name, const char* label,
                                  const char* caption) {
    auto* text = new QLabel(Text(label, caption), this);
    text->setObjectName(QLatin1String(label));
    auto* edit = new QLineEdit(this);
    edit->setObjectName(QStringLiteral("txt") + QLatin1String(name));
    edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("#DDDDDDD")) + 16);
    text->setBuddy(edit);
    grid->addWidget(text, row, 0);
    grid->addWidget(edit, row, 1);
    return edit;
}

void ColorsDialog::Entered(QLineEdit* edit, bool (ColorPicker::*take)(std::string_view)) {
    (picker_.*take)(StdStr(edit->text()));
    Refresh();
}

void ColorsDialog::Refresh() {
    field_->SetHsv(picker_.HsvValue());
    hue_->SetHue(picker_.HsvValue().hue);
    new_->SetColor(picker_.Color(), withAlpha_ ? picker_.Alpha() : 255);
    for (const Box& box : boxes_)
        box.edit->setText(QString::number(picker_.ChannelValue(box.channel)));
    long_->setText(QStr(picker_.LongString()));
    hex_->setText(QStr(picker_.HexString()));
}

}  // namespace iw::ui
