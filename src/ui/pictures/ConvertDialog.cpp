#include "ui/pictures/ConvertDialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "document/io/PictureLoading.h"
#include "services/core/TextCatalog.h"
#include "services/desktop/DesktopTexts.h"
#include "services/desktop/TemplateEditor.h"
#include "ui/UiText.h"
#include "ui/dialogs/DialogButtonTexts.h"
#include "ui/pictures/PictureTexts.h"

namespace iw::ui {
namespace {

namespace ct = picture_texts::convert;

constexpr int kPreviewSide = 160;  // logical pixels

QLabel* WrappedLabel(const TextId& text) {
    auto* label = new QLabel(Tr(text));
    label->setObjectName(QStr(text.key));
    label->setWordWrap(true);
    return label;
}

// The picture shrunk (never enlarged) into a square on a checkerboard, at the screen's
// resolution.
QPixmap PreviewOf(const RgbaBuffer& picture, qreal ratio) {
    const int side = qRound(kPreviewSide * ratio);
    QPixmap shown(side, side);
    shown.fill(Qt::transparent);
    QPainter painter(&shown);
    QPixmap tile(16, 16);
    tile.fill(Qt::white);
    QPainter(&tile).fillRect(0, 0, 8, 8, QColor(204, 204, 204));
    QPainter(&tile).fillRect(8, 8, 8, 8, QColor(204, 204, 204));
    painter.fillRect(shown.rect(), QBrush(tile));
    if (!picture.Empty()) {
        const QImage image(picture.Bytes().data(), picture.Width(), picture.Height(),
                           picture.Width() * 4, QImage::Format_RGBA8888);
        QSize fitted = image.size();
        if (fitted.width() > side || fitted.height() > side)
            fitted.scale(side, side, Qt::KeepAspectRatio);
        const QRect target(QPoint((side - fitted.width()) / 2, (side - fitted.height()) / 2),
                           fitted);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(target, image);
    }
    painter.end();
    shown.setDevicePixelRatio(ratio);
    return shown;
}

}  // namespace

ConvertDialog::ConvertDialog(const TemplateLibrary& templates, MessageService& messages,
                             IPictureDecoder& decoder, BrowseForPicture browse, QWidget* parent)
    : QDialog(parent),
      templates_(templates),
      messages_(messages),
      decoder_(decoder),
      browse_(std::move(browse)) {
    setObjectName(QStringLiteral("frmConvert"));
    setWindowTitle(Tr(ct::Caption));

    steps_ = new QStackedWidget(this);
    steps_->addWidget(MakePictureStep());
    steps_->addWidget(MakeTemplateStep());

    // A wizard's buttons in a wizard's order: Back, Next, Finish, then Cancel.
    auto* buttonRow = new QHBoxLayout;
    buttonRow->addStretch(1);
    const auto addButton = [&](const char* name, const TextId& text) {
        auto* button = new QPushButton(Tr(text));
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        buttonRow->addWidget(button);
        return button;
    };
    back_ = addButton("cmdBack", ct::Back);
    next_ = addButton("cmdNext", buttons::Next);
    finish_ = addButton("cmdFinish", buttons::Finish);
    buttonRow->addSpacing(12);
    QPushButton* cancel = addButton("cmdCancel", buttons::Cancel);
    connect(back_, &QPushButton::clicked, this, [this] { ShowStep(0); });
    connect(next_, &QPushButton::clicked, this, [this] {
        if (!ReadPicture()) return;
        ShowPicture();
        ShowStep(1);
    });
    connect(finish_, &QPushButton::clicked, this, [this] {
        if (ChosenTemplate() && !picture_.Empty()) accept();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(steps_);
    layout->addLayout(buttonRow);
    // The most common task, an application's icon from a logo, is the first offered.
    const auto application =
        list_->findItems(QStringLiteral("Windows Application"), Qt::MatchExactly);
    if (!application.isEmpty())
        list_->setCurrentItem(application.front());
    else if (list_->count() > 0)
        list_->setCurrentRow(0);
    ShowStep(0);
}

QWidget* ConvertDialog::MakePictureStep() {
    auto* step = new QWidget;
    path_ = new QLineEdit;
    path_->setObjectName(QStringLiteral("txtPicture"));
    path_->setMinimumWidth(320);
    auto* browse = new QPushButton(Tr(ct::Browse));
    browse->setObjectName(QStringLiteral("cmdBrowse"));
    browse->setAutoDefault(false);
    preview_ = new QLabel;
    preview_->setObjectName(QStringLiteral("picPicture"));
    preview_->setFixedSize(kPreviewSide, kPreviewSide);
    preview_->setFrameShape(QFrame::StyledPanel);
    size_ = new QLabel;
    size_->setObjectName(QStringLiteral("lblSize"));

    connect(browse, &QPushButton::clicked, this, &ConvertDialog::Browse);
    connect(path_, &QLineEdit::textChanged, this, [this] {
        picture_ = RgbaBuffer();
        ShowPicture();
    });

    auto* row = new QHBoxLayout;
    row->addWidget(path_, 1);
    row->addWidget(browse);
    auto* layout = new QVBoxLayout(step);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(WrappedLabel(ct::PictureStep));
    layout->addLayout(row);
    layout->addWidget(preview_, 0, Qt::AlignHCenter);
    layout->addWidget(size_, 0, Qt::AlignHCenter);
    layout->addStretch(1);
    return step;
}

QWidget* ConvertDialog::MakeTemplateStep() {
    auto* step = new QWidget;
    list_ = new QListWidget;
    list_->setObjectName(QStringLiteral("lstTemplates"));
    for (const IconTemplate& entry : templates_.Templates())
        list_->addItem(QStr(entry.name));
    formats_ = new QTreeWidget;
    formats_->setObjectName(QStringLiteral("lstFormats"));
    formats_->setRootIsDecorated(false);
    formats_->setSelectionMode(QAbstractItemView::NoSelection);
    formats_->setHeaderLabels({Tr(ct::SizeColumn), Tr(ct::DepthColumn), Tr(ct::CompressedColumn)});
    formats_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(list_, &QListWidget::currentRowChanged, this, [this] {
        ShowFormats();
        UpdateButtons();
    });

    auto* lists = new QHBoxLayout;
    lists->addWidget(list_, 2);
    lists->addWidget(formats_, 3);
    auto* layout = new QVBoxLayout(step);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(WrappedLabel(ct::TemplateStep));
    layout->addLayout(lists, 1);
    return step;
}

const IconTemplate* ConvertDialog::ChosenTemplate() const {
    const int row = list_->currentRow();
    const auto& all = templates_.Templates();
    if (row < 0 || row >= static_cast<int>(all.size())) return nullptr;
    return &all[static_cast<std::size_t>(row)];
}

void ConvertDialog::ShowStep(int step) {
    steps_->setCurrentIndex(step);
    if (step == 1) list_->setFocus();
    UpdateButtons();
}

void ConvertDialog::Browse() {
    const std::optional<std::string> chosen = browse_ ? browse_() : std::nullopt;
    if (!chosen) return;
    path_->setText(QStr(*chosen));
    if (ReadPicture()) ShowPicture();
}

bool ConvertDialog::ReadPicture() {
    if (!picture_.Empty()) return true;
    const std::string path = StdStr(path_->text().trimmed());
    if (path.empty()) return false;
    PictureLoadOptions options;
    options.decoder = &decoder_;
    RgbaBuffer read;
    if (LoadPictureFile(path, options, messages_, read) != PictureLoadStatus::Ok) return false;
    picture_ = std::move(read);
    return true;
}

void ConvertDialog::ShowPicture() {
    preview_->setPixmap(PreviewOf(picture_, devicePixelRatioF()));
    size_->setText(picture_.Empty() ? QString()
                                    : QStringLiteral("%1 x %2 %3")
                                          .arg(picture_.Width())
                                          .arg(picture_.Height())
                                          .arg(Tr(texts::Pixels)));
    UpdateButtons();
}

void ConvertDialog::ShowFormats() {
    formats_->clear();
    const IconTemplate* chosen = ChosenTemplate();
    if (!chosen) return;
    for (const TemplateEntry& entry : chosen->entries) {
        auto* row = new QTreeWidgetItem(formats_);
        row->setText(0, QStringLiteral("%1 x %2").arg(entry.Width()).arg(entry.Height()));
        row->setText(1, QStr(TemplateEditor::DepthName(entry.bits)));
        row->setText(2, Tr(entry.compressed ? texts::CompressedYes : texts::CompressedNo));
    }
}

void ConvertDialog::UpdateButtons() {
    const bool first = steps_->currentIndex() == 0;
    back_->setEnabled(!first);
    next_->setEnabled(first && !path_->text().trimmed().isEmpty());
    finish_->setEnabled(!first && ChosenTemplate() && !picture_.Empty());
    (first ? next_ : finish_)->setDefault(true);
    (first ? finish_ : next_)->setDefault(false);
}

}  // namespace iw::ui
