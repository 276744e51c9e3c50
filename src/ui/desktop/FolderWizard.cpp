#include "ui/desktop/FolderWizard.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "document/io/Favicon.h"
#include "document/io/FolderIconSet.h"
#include "document/io/PictureLoading.h"
#include "document/io/ProgramIcons.h"
#include "services/core/TextCatalog.h"
#include "services/desktop/DesktopTexts.h"
#include "ui/UiText.h"
#include "ui/desktop/DesktopWindowTexts.h"

namespace iw::ui {
namespace {

namespace dt = desktop_texts;
namespace ft = desktop_texts::folder;

constexpr int kPreviewScale = 2;

std::filesystem::path PathOf(const QString& text) {
    return std::filesystem::path(text.trimmed().toStdU16String());
}

QImage ToImage(const RgbaBuffer& pixels) {
    QImage image(pixels.Width(), pixels.Height(), QImage::Format_RGBA8888);
    for (int y = 0; y < pixels.Height(); ++y) {
        std::memcpy(image.scanLine(y), &pixels.At(0, y),
                    static_cast<std::size_t>(pixels.Width()) * sizeof(Rgba));
    }
    return image;
}

QPixmap PreviewPixmap(const RgbaBuffer& pixels) {
    return QPixmap::fromImage(
        ToImage(pixels).scaled(pixels.Width() * kPreviewScale, pixels.Height() * kPreviewScale,
                               Qt::IgnoreAspectRatio, Qt::FastTransformation));
}

template <typename T>
T* Named(T* widget, const TextId& text) {
    widget->setObjectName(QStr(text.key));
    return widget;
}

QLineEdit* Field(const char* name, const QString& value, QWidget* parent) {
    auto* field = new QLineEdit(value, parent);
    field->setObjectName(QString::fromLatin1(name));
    field->setMaximumWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("-0000")) + 16);
    return field;
}

QPushButton* BrowseButton(const char* name, QWidget* parent) {
    auto* button = new QPushButton(Tr(ft::Browse), parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

// A label, a path field and its Browse button in `row` of the grid.
QLineEdit* AddPathRow(QGridLayout* grid, int row, const TextId& label, const char* field,
                      const char* button, QPushButton*& browse) {
    QWidget* page = grid->parentWidget();
    auto* edit = new QLineEdit(page);
    edit->setObjectName(QString::fromLatin1(field));
    auto* caption = Named(new QLabel(Tr(label), page), label);
    caption->setBuddy(edit);
    browse = BrowseButton(button, page);
    grid->addWidget(caption, row, 0);
    grid->addWidget(edit, row, 1);
    grid->addWidget(browse, row, 2);
    return edit;
}

void SetSwatch(QPushButton* button, Rgba colour) {
    button->setStyleSheet(QStringLiteral("QPushButton { background: rgb(%1, %2, %3); }")
                              .arg(colour.r)
                              .arg(colour.g)
                              .arg(colour.b));
}

}  // namespace

FolderWizard::FolderWizard(Editor& editor, FolderIcons& folderIcons, QWidget* parent)
    : QDialog(parent), editor_(editor), folderIcons_(folderIcons) {
    setObjectName(QStr(ft::kWindow));
    setWindowTitle(Tr(ft::Caption));

    pages_ = new QStackedWidget(this);
    pages_->setObjectName(QStringLiteral("fraPages"));
    pages_->addWidget(MakeStartPage());
    pages_->addWidget(MakeSetPage());
    pages_->addWidget(MakeCreatePage());

    back_ = new QPushButton(Tr(ft::Back), this);
    back_->setObjectName(QStr(ft::Back.key));
    next_ = new QPushButton(Tr(dt::Next), this);
    next_->setObjectName(QStr(dt::Next.key));
    finish_ = new QPushButton(Tr(dt::Finish), this);
    finish_->setObjectName(QStr(dt::Finish.key));
    auto* cancel = new QPushButton(Tr(dt::Cancel), this);
    cancel->setObjectName(QStr(dt::Cancel.key));
    for (QPushButton* button : {back_, next_, finish_, cancel})
        button->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(back_);
    buttons->addWidget(next_);
    buttons->addWidget(finish_);
    buttons->addSpacing(8);
    buttons->addWidget(cancel);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages_, 1);
    layout->addLayout(buttons);

    connect(back_, &QPushButton::clicked, this, [this] { ShowPage(StartPage); });
    connect(next_, &QPushButton::clicked, this, &FolderWizard::Next);
    connect(finish_, &QPushButton::clicked, this, &FolderWizard::Finish);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    LoadPicture(false);
    ShowCurrentIcon();
    ShowPage(StartPage);
}

// ---- Pages --------------------------------------------------------------------------------

QWidget* FolderWizard::MakeStartPage() {
    auto* page = new QWidget(this);
    page->setObjectName(QStringLiteral("fraStart"));
    auto* layout = new QVBoxLayout(page);
    auto* welcome = Named(new QLabel(Tr(ft::Welcome), page), ft::Welcome);
    welcome->setWordWrap(true);
    set_ = Named(new QRadioButton(Tr(ft::Set), page), ft::Set);
    create_ = Named(new QRadioButton(Tr(ft::Create), page), ft::Create);
    set_->setChecked(true);
    layout->addWidget(welcome);
    layout->addSpacing(8);
    layout->addWidget(set_);
    layout->addWidget(create_);
    layout->addStretch(1);
    return page;
}

QWidget* FolderWizard::MakeSetPage() {
    auto* page = new QWidget(this);
    page->setObjectName(QStringLiteral("fraSet"));
    auto* grid = new QGridLayout(page);

    QPushButton* browseFolder = nullptr;
    folder_ = AddPathRow(grid, 0, ft::FolderLabel, "txtFolder", "cmdBrowseFolder", browseFolder);

    currentPicture_ = new QLabel(page);
    currentPicture_->setObjectName(QStringLiteral("picCurrent"));
    currentPicture_->setFixedSize(48 + 4, 48 + 4);
    currentPicture_->setAlignment(Qt::AlignCenter);
    currentText_ = new QLabel(page);
    currentText_->setObjectName(QStringLiteral("lblCurrentIcon"));
    currentText_->setWordWrap(true);
    currentText_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* current = new QHBoxLayout;
    current->addWidget(currentPicture_);
    current->addWidget(currentText_, 1);
    grid->addWidget(Named(new QLabel(Tr(ft::CurrentLabel), page), ft::CurrentLabel), 1, 0,
                    Qt::AlignTop);
    grid->addLayout(current, 1, 1, 1, 2);

    QPushButton* browseIcon = nullptr;
    icon_ = AddPathRow(grid, 2, ft::IconLabel, "txtIcon", "cmdBrowseIcon", browseIcon);
    if (editor_.Document().HasFileName() && editor_.Document().Mode() == FileMode::ICO)
        icon_->setText(QStr(editor_.Document().FileName()));

    index_ = new QSpinBox(page);
    index_->setObjectName(QStringLiteral("txtIndex"));
    index_->setMinimumWidth(index_->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 32);
    auto* indexLabel = Named(new QLabel(Tr(ft::IndexLabel), page), ft::IndexLabel);
    indexLabel->setBuddy(index_);
    grid->addWidget(indexLabel, 3, 0);
    grid->addWidget(index_, 3, 1, Qt::AlignLeft);
    ShowIconCount();

    copy_ = Named(new QCheckBox(Tr(ft::Copy), page), ft::Copy);
    grid->addWidget(copy_, 4, 1, 1, 2);
    grid->setRowStretch(5, 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(1, 320);

    connect(folder_, &QLineEdit::textChanged, this, &FolderWizard::ShowCurrentIcon);
    connect(icon_, &QLineEdit::textChanged, this, &FolderWizard::ShowIconCount);
    connect(browseFolder, &QPushButton::clicked, this, &FolderWizard::BrowseFolder);
    connect(browseIcon, &QPushButton::clicked, this, &FolderWizard::BrowseIcon);
    return page;
}

QWidget* FolderWizard::MakeCreatePage() {
    auto* page = new QWidget(this);
    page->setObjectName(QStringLiteral("fraCreate"));

    auto* pictureBox = Named(new QGroupBox(Tr(ft::PictureFrame), page), ft::PictureFrame);
    useCurrent_ = Named(new QRadioButton(Tr(ft::UseCurrent), pictureBox), ft::UseCurrent);
    useFile_ = Named(new QRadioButton(Tr(ft::UseFile), pictureBox), ft::UseFile);
    useCurrent_->setChecked(true);
    pictureFile_ = new QLineEdit(pictureBox);
    pictureFile_->setObjectName(QStringLiteral("txtPicture"));
    QPushButton* browsePicture = BrowseButton("cmdBrowsePicture", pictureBox);
    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(useFile_);
    fileRow->addWidget(pictureFile_, 1);
    fileRow->addWidget(browsePicture);
    auto* pictureLayout = new QVBoxLayout(pictureBox);
    pictureLayout->addWidget(useCurrent_);
    pictureLayout->addLayout(fileRow);

    auto* layoutBox = Named(new QGroupBox(Tr(ft::LayoutFrame), page), ft::LayoutFrame);
    offsetX_ = Field("txtOffsetX", QStringLiteral("0"), layoutBox);
    offsetY_ = Field("txtOffsetY", QStringLiteral("0"), layoutBox);
    angle_ = Field("txtAngle", QStringLiteral("0"), layoutBox);
    density_ = Field("txtDensity", QStringLiteral("256"), layoutBox);
    mask_ = Named(new QCheckBox(Tr(ft::Mask), layoutBox), ft::Mask);
    maskButton_ = Named(new QPushButton(layoutBox), ft::MaskColour);
    maskButton_->setToolTip(Tr(ft::MaskColour));
    maskButton_->setFixedSize(28, 22);
    maskButton_->setAutoDefault(false);
    SetSwatch(maskButton_, maskColour_);
    auto* form = new QFormLayout;
    const std::array<std::pair<const TextId*, QLineEdit*>, 4> fields = {{
        {&ft::OffsetX, offsetX_},
        {&ft::OffsetY, offsetY_},
        {&ft::Angle, angle_},
        {&ft::Density, density_},
    }};
    for (const auto& [text, field] : fields) {
        auto* label = Named(new QLabel(Tr(*text), layoutBox), *text);
        label->setBuddy(field);  // the & of its caption moves to the field
        form->addRow(label, field);
    }
    auto* maskRow = new QHBoxLayout;
    maskRow->addWidget(mask_);
    maskRow->addWidget(maskButton_);
    maskRow->addStretch(1);
    form->addRow(maskRow);
    layoutBox->setLayout(form);

    auto* previewBox = Named(new QGroupBox(Tr(ft::Preview), page), ft::Preview);
    auto* previewLayout = new QHBoxLayout(previewBox);
    for (std::size_t i = 0; i < previews_.size(); ++i) {
        previews_[i] = new QLabel(previewBox);
        previews_[i]->setObjectName(QStringLiteral("picPreview"));
        previews_[i]->setProperty("tag", kFolderIconSides[previews_.size() - 1 - i]);
        previews_[i]->setAlignment(Qt::AlignBottom | Qt::AlignHCenter);
        previewLayout->addWidget(previews_[i], 0, Qt::AlignBottom);
    }
    previewBox->setMinimumHeight(48 * kPreviewScale + 40);

    auto* formats = Named(new QLabel(Tr(ft::Formats), page), ft::Formats);
    formats->setWordWrap(true);

    auto* columns = new QHBoxLayout;
    columns->addWidget(layoutBox, 1);
    columns->addWidget(previewBox);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(pictureBox);
    layout->addLayout(columns);
    layout->addWidget(formats);
    layout->addStretch(1);

    for (QLineEdit* field : {offsetX_, offsetY_, angle_, density_})
        connect(field, &QLineEdit::textChanged, this, &FolderWizard::UpdatePreview);
    connect(mask_, &QCheckBox::toggled, this, &FolderWizard::UpdatePreview);
    connect(maskButton_, &QPushButton::clicked, this, &FolderWizard::ChooseMaskColour);
    connect(useCurrent_, &QRadioButton::toggled, this, [this] { LoadPicture(false); });
    connect(pictureFile_, &QLineEdit::editingFinished, this, [this] {
        useFile_->setChecked(true);
        LoadPicture(false);
    });
    connect(browsePicture, &QPushButton::clicked, this, &FolderWizard::BrowsePicture);
    return page;
}

FolderWizard::Page FolderWizard::CurrentPage() const {
    return static_cast<Page>(pages_->currentIndex());
}

void FolderWizard::ShowPage(Page page) {
    pages_->setCurrentIndex(page);
    back_->setEnabled(page != StartPage);
    next_->setEnabled(page == StartPage);
    finish_->setEnabled(page != StartPage);
    (page == StartPage ? next_ : finish_)->setDefault(true);
}

void FolderWizard::Next() {
    ShowPage(create_->isChecked() ? CreatePage : SetPage);
}

void FolderWizard::Finish() {
    if (CurrentPage() == SetPage ? FinishSet() : FinishCreate()) accept();
}

// ---- Setting a folder's icon -------------------------------------------------------------

void FolderWizard::ShowCurrentIcon() {
    const std::filesystem::path folder = PathOf(folder_->text());
    const std::optional<DesktopIniIcon> icon =
        folder.empty() ? std::nullopt : folderIcons_.CurrentIcon(folder);
    currentText_->setText(icon ? QStr(icon->iconFile) : Tr(texts::NoFolderIcon));
    currentPicture_->clear();
    currentPicture_->setVisible(icon.has_value());
    if (!icon) return;
    std::filesystem::path file = PathOf(QStr(icon->iconFile));
    if (file.is_relative()) file = folder / file;
    PictureLoadOptions options;
    options.reportFailure = false;
    RgbaBuffer pixels;
    if (LoadPictureFile(file, options, editor_.Settings().Messages(), pixels) ==
        PictureLoadStatus::Ok) {
        currentPicture_->setPixmap(
            QPixmap::fromImage(ToImage(pixels))
                .scaled(48, 48, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }
}

void FolderWizard::ShowIconCount() {
    // A program or library holds several icons, chosen by their index; an icon file one.
    int icons = 0;
    const std::string file = StdStr(icon_->text().trimmed());
    if (IsProgramFile(file)) {
        if (const std::optional<ProgramFile> program = ProgramFile::Open(file)) {
            for (const ResourceGroup& group : program->Groups())
                icons += group.kind == ResourceGroupKind::Icon ? 1 : 0;
        }
    }
    index_->setRange(0, std::max(icons - 1, 0));
    index_->setEnabled(icons > 1);
}

bool FolderWizard::FinishSet() {
    FolderIconRequest request;
    request.folder = PathOf(folder_->text());
    request.icon = PathOf(icon_->text());
    request.index = index_->value();
    request.copy = copy_->isChecked();
    const FolderIconResult result = folderIcons_.SetIcon(request, editor_.Settings().Messages());
    if (result.status == FolderIconStatus::WriteFailed)
        editor_.Settings().Messages().Show(ft::NotWritten, MessageType::Critical);
    else if (result.status == FolderIconStatus::Done)
        editor_.Settings().Messages().Show(ft::Done, MessageType::Information);
    ShowCurrentIcon();
    return result.status == FolderIconStatus::Done;
}

void FolderWizard::BrowseFolder() {
    const QString folder = QFileDialog::getExistingDirectory(
        this, Tr(ft::FolderLabel).remove(QLatin1Char('&')), folder_->text());
    if (!folder.isEmpty()) folder_->setText(folder);
}

void FolderWizard::BrowseIcon() {
    const QString file = QFileDialog::getOpenFileName(
        this, Tr(ft::IconLabel).remove(QLatin1Char('&')), icon_->text(), Tr(ft::IconFilter));
    if (!file.isEmpty()) icon_->setText(file);
}

// ---- Creating a folder icon --------------------------------------------------------------

void FolderWizard::BrowsePicture() {
    const QString file = QFileDialog::getOpenFileName(this, Tr(ft::PictureFrame),
                                                      pictureFile_->text(), Tr(ft::PictureFilter));
    if (file.isEmpty()) return;
    pictureFile_->setText(file);
    useFile_->setChecked(true);
    LoadPicture(true);
}

void FolderWizard::ChooseMaskColour() {
    const QColor chosen = QColorDialog::getColor(
        QColor(maskColour_.r, maskColour_.g, maskColour_.b), this, Tr(ft::MaskColour));
    if (!chosen.isValid()) return;
    maskColour_ = {static_cast<std::uint8_t>(chosen.red()),
                   static_cast<std::uint8_t>(chosen.green()),
                   static_cast<std::uint8_t>(chosen.blue()), 255};
    SetSwatch(maskButton_, maskColour_);
    mask_->setChecked(true);
    UpdatePreview();
}

void FolderWizard::LoadPicture(bool report) {
    picture_ = {};
    if (useCurrent_->isChecked()) {
        picture_ = LargestImagePixels(editor_.Set());
    } else if (!pictureFile_->text().trimmed().isEmpty()) {
        PictureLoadOptions options;
        options.decoder = &decoder_;
        options.reportFailure = report;
        LoadPictureFile(PathOf(pictureFile_->text()), options, editor_.Settings().Messages(),
                        picture_);
    }
    UpdatePreview();
}

std::optional<FolderOverlay> FolderWizard::ReadOverlay(bool report) {
    FolderOverlay overlay;
    const std::array<std::tuple<QLineEdit*, const OverlayField*, int*>, 4> fields = {{
        {offsetX_, &kOffsetField, &overlay.offsetX},
        {offsetY_, &kOffsetField, &overlay.offsetY},
        {angle_, &kAngleField, &overlay.angle},
        {density_, &kDensityField, &overlay.density},
    }};
    for (const auto& [field, range, value] : fields) {
        const std::optional<int> number = OverlayFieldValue(StdStr(field->text()), *range);
        if (!number) {
            if (report) {
                editor_.Settings().Messages().Show(range->message, MessageType::Exclamation);
                field->setFocus();
                field->selectAll();
            }
            return std::nullopt;
        }
        *value = *number;
    }
    if (mask_->isChecked()) overlay.maskColor = maskColour_;
    return overlay;
}

void FolderWizard::UpdatePreview() {
    const std::optional<FolderOverlay> overlay = ReadOverlay(false);
    if (!overlay) return;  // the last good preview stays until the fields are right again
    for (QLabel* preview : previews_) {
        const int side = preview->property("tag").toInt();
        preview->setPixmap(PreviewPixmap(ComposeFolderIcon(picture_, *overlay, side)));
    }
}

bool FolderWizard::FinishCreate() {
    const std::optional<FolderOverlay> overlay = ReadOverlay(true);
    if (!overlay) return false;
    LoadPicture(true);
    if (picture_.Empty()) {
        // A picture file that could not be read has been reported already.
        if (useCurrent_->isChecked() || pictureFile_->text().trimmed().isEmpty())
            editor_.Settings().Messages().Show(texts::SelectIcon, MessageType::Exclamation);
        return false;
    }
    IconSet made;
    BuildFolderIconSet(picture_, *overlay, made);
    return editor_.Document().NewFolderIcon(made);
}

}  // namespace iw::ui
