#include "ui/dialogs/TextDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "services/core/TextCatalog.h"
#include "ui/UiText.h"
#include "ui/adapters/RgbaImage.h"
#include "ui/dialogs/OkCancelButtons.h"

namespace iw::ui {
namespace {

constexpr std::string_view kWindow = "frmText";
constexpr int kMinSize = 1;
constexpr int kMaxSize = 200;
constexpr int kPreviewSide = 96;
constexpr int kMaxPreviewScale = 8;
constexpr int kCheckerSquare = 8;

QString C(std::string_view key, std::string_view text) {
    return Caption(kWindow, key, text);
}

}  // namespace

TextDialog::TextDialog(const TextLook& look, QWidget* parent) : QDialog(parent), look_(look) {
    setObjectName(QStr(kWindow));
    setWindowTitle(C("Caption", "Text"));

    text_ = new QPlainTextEdit(this);
    text_->setObjectName(QStringLiteral("txtText"));
    text_->setTabChangesFocus(true);
    text_->setFixedHeight(text_->fontMetrics().lineSpacing() * 4);

    fontName_ = new QLabel(this);
    fontName_->setObjectName(QStringLiteral("lblFontName"));
    auto* chooseFont = new QPushButton(Tr(texts::SelectFont), this);
    chooseFont->setObjectName(QStringLiteral("cmdFont"));
    connect(chooseFont, &QPushButton::clicked, this, &TextDialog::ChooseFont);
    auto* fontRow = new QHBoxLayout;
    fontRow->addWidget(fontName_, 1);
    fontRow->addWidget(chooseFont);

    size_ = new QSpinBox(this);
    size_->setObjectName(QStringLiteral("txtSize"));
    size_->setRange(kMinSize, kMaxSize);
    size_->setValue(std::clamp(look_.font.pointSize(), kMinSize, kMaxSize));

    antialias_ = new QCheckBox(C("chkAntialias", "&Antialiasing"), this);
    antialias_->setObjectName(QStringLiteral("chkAntialias"));
    antialias_->setChecked(look_.antialias);

    preview_ = new QLabel(this);
    preview_->setObjectName(QStringLiteral("picText"));
    preview_->setMinimumSize(kPreviewSide * 2, kPreviewSide);
    preview_->setAlignment(Qt::AlignCenter);
    preview_->setFrameShape(QFrame::StyledPanel);

    auto* form = new QFormLayout;
    form->addRow(C("lblText", "&Text:"), text_);
    form->addRow(C("lblFont", "Font:"), fontRow);
    form->addRow(C("lblSize", "&Size:"), size_);
    form->addRow(QString(), antialias_);
    form->addRow(C("lblPreview", "Preview:"), preview_);

    QDialogButtonBox* buttons = OkCancelButtons(*this);
    ok_ = buttons->findChild<QPushButton*>(QStringLiteral("cmdOK"));

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);

    connect(text_, &QPlainTextEdit::textChanged, this, &TextDialog::Refresh);
    connect(size_, &QSpinBox::valueChanged, this, &TextDialog::Refresh);
    connect(antialias_, &QCheckBox::toggled, this, &TextDialog::Refresh);
    Refresh();
    text_->setFocus();
}

TextLook TextDialog::Look() const {
    TextLook look = look_;
    look.font.setPointSize(size_->value());
    look.antialias = antialias_->isChecked();
    return look;
}

RgbaPicture TextDialog::Rendered() const {
    return RenderText(text_->toPlainText(), Look());
}

void TextDialog::ChooseFont() {
    bool chosen = false;
    const QFont font = QFontDialog::getFont(&chosen, Look().font, this, Tr(texts::SelectFont));
    if (!chosen) return;
    look_.font = font;
    if (font.pointSize() > 0) size_->setValue(std::clamp(font.pointSize(), kMinSize, kMaxSize));
    Refresh();
}

void TextDialog::Refresh() {
    const TextLook look = Look();
    fontName_->setText(QStringLiteral("%1, %2").arg(look.font.family()).arg(size_->value()));
    const QImage picture = ImageOfPicture(Rendered());
    ok_->setEnabled(!picture.isNull());
    if (picture.isNull()) {
        preview_->clear();
        return;
    }
    // The pixels as they will land, enlarged without smoothing, over a mid-grey
    // checkerboard on which both black and white text show.
    const QSize room = preview_->contentsRect().size();
    const int scale =
        std::clamp(std::min(room.width() / picture.width(), room.height() / picture.height()), 1,
                   kMaxPreviewScale);
    QPixmap shown(picture.size() * scale);
    QPainter painter(&shown);
    for (int y = 0; y < shown.height(); y += kCheckerSquare) {
        for (int x = 0; x < shown.width(); x += kCheckerSquare) {
            const bool dark = (x / kCheckerSquare + y / kCheckerSquare) % 2 != 0;
            painter.fillRect(x, y, kCheckerSquare, kCheckerSquare,
                             dark ? QColor(118, 124, 134) : QColor(156, 162, 172));
        }
    }
    painter.drawImage(shown.rect(), picture);
    painter.end();
    preview_->setPixmap(shown);
}

}  // namespace iw::ui
