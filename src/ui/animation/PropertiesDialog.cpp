#include "ui/animation/PropertiesDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "services/core/TextCatalog.h"
#include "ui/UiText.h"
#include "ui/animation/AnimationTexts.h"
#include "ui/animation/FramePainting.h"
#include "ui/dialogs/OkCancelButtons.h"

namespace iw::ui {
namespace {

namespace at = animation_texts;

constexpr int kThumbnail = 32;
constexpr int kVisibleRows = 6;  // before the frames' list scrolls

QLabel* NamedLabel(const TextId& text, QWidget* parent) {
    auto* label = new QLabel(Tr(text), parent);
    label->setObjectName(QStr(text.key));
    return label;
}

// The unit beside a rate box, wide enough for either unit.
QLabel* UnitLabel(QWidget* parent) {
    auto* label = new QLabel(parent);
    const QFontMetrics metrics = label->fontMetrics();
    label->setMinimumWidth(
        std::max(metrics.horizontalAdvance(QStr(RateUnitText(RateUnit::Jiffies))),
                 metrics.horizontalAdvance(QStr(RateUnitText(RateUnit::Seconds)))));
    return label;
}

QLineEdit* RateBox(const char* name, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(QString::fromLatin1(name));
    box->setMaxLength(12);
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("000.0000")) + 16);
    box->setAlignment(Qt::AlignRight);
    return box;
}

}  // namespace

PropertiesDialog::PropertiesDialog(Editor& editor, QWidget* parent)
    : QDialog(parent), editor_(editor), properties_(editor.Animation().EditProperties()) {
    setObjectName(QStr(at::kProperties));
    setWindowTitle(Tr(texts::ANIProperties));

    name_ = new QLineEdit(QStr(properties_.Name()), this);
    name_->setObjectName(QStringLiteral("txtName"));
    artist_ = new QLineEdit(QStr(properties_.Artist()), this);
    artist_->setObjectName(QStringLiteral("txtArtist"));
    connect(name_, &QLineEdit::textEdited, this,
            [this](const QString& text) { properties_.SetName(StdStr(text)); });
    connect(artist_, &QLineEdit::textEdited, this,
            [this](const QString& text) { properties_.SetArtist(StdStr(text)); });
    auto* names = new QFormLayout;
    QLabel* nameLabel = NamedLabel(at::NameLabel, this);
    nameLabel->setBuddy(name_);
    QLabel* artistLabel = NamedLabel(at::ArtistLabel, this);
    artistLabel->setBuddy(artist_);
    names->addRow(nameLabel, name_);
    names->addRow(artistLabel, artist_);

    auto* rates = new QGroupBox(Tr(at::RatesFrame), this);
    rates->setObjectName(QStr(at::RatesFrame.key));
    unit_ = new QComboBox(rates);
    unit_->setObjectName(QStringLiteral("cboUnit"));
    unit_->addItem(QStr(RateUnitText(RateUnit::Jiffies)), static_cast<int>(RateUnit::Jiffies));
    unit_->addItem(QStr(RateUnitText(RateUnit::Seconds)), static_cast<int>(RateUnit::Seconds));
    connect(unit_, &QComboBox::currentIndexChanged, this, [this](int index) {
        properties_.SetUnit(static_cast<RateUnit>(unit_->itemData(index).toInt()));
        ShowRates();
    });
    defaultRate_ = RateBox("txtDefaultRate", rates);
    connect(defaultRate_, &QLineEdit::textEdited, this, [this](const QString& text) {
        properties_.SetDefaultRateText(StdStr(text));
        ShowRates(defaultRate_);
    });
    defaultUnit_ = UnitLabel(rates);
    auto* defaultRow = new QHBoxLayout;
    defaultRow->addWidget(defaultRate_);
    defaultRow->addWidget(defaultUnit_);
    defaultRow->addStretch();
    auto* unitRow = new QHBoxLayout;
    unitRow->addWidget(unit_);
    unitRow->addStretch();
    auto* top = new QFormLayout;
    QLabel* unitLabel = NamedLabel(at::UnitLabel, rates);
    unitLabel->setBuddy(unit_);
    QLabel* defaultLabel = NamedLabel(at::DefaultRateLabel, rates);
    defaultLabel->setBuddy(defaultRate_);
    top->addRow(unitLabel, unitRow);
    top->addRow(defaultLabel, defaultRow);
    QLabel* hint = NamedLabel(at::DefaultRateHint, rates);
    hint->setWordWrap(true);

    frames_ = new QScrollArea(rates);
    frames_->setWidget(MakeFrameRows(editor.Set()));
    ShowRates();  // the rows' texts count in their width
    frames_->setWidgetResizable(true);
    frames_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int shown = std::min(properties_.FrameCount(), kVisibleRows);
    const int rowHeight =
        frames_->widget()->sizeHint().height() / std::max(1, properties_.FrameCount());
    frames_->setMinimumHeight(shown * rowHeight + 2 * frames_->frameWidth());
    frames_->setMinimumWidth(frames_->widget()->sizeHint().width() +
                             frames_->verticalScrollBar()->sizeHint().width() +
                             2 * frames_->frameWidth());

    auto* ratesLayout = new QVBoxLayout(rates);
    ratesLayout->addLayout(top);
    ratesLayout->addWidget(hint);
    ratesLayout->addWidget(frames_, 1);

    QDialogButtonBox* buttons = OkCancelButtons(*this);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(names);
    layout->addWidget(rates, 1);
    layout->addWidget(buttons);
}

QWidget* PropertiesDialog::MakeFrameRows(const IconSet& set) {
    auto* list = new QWidget;
    list->setObjectName(QStringLiteral("picFrameRates"));
    auto* grid = new QGridLayout(list);
    const qreal ratio = devicePixelRatioF();
    for (int frame = 0; frame < properties_.FrameCount(); ++frame) {
        auto* picture = new QLabel(list);
        picture->setPixmap(FrameThumbnail(set.Image(frame), kThumbnail, ratio));
        auto* label = new QLabel(Tr(at::FrameLabel).arg(frame + 1), list);
        FrameRow row;
        row.rate = RateBox("txtRate", list);
        row.rate->setProperty("tag", frame + 1);
        label->setBuddy(row.rate);
        row.unit = UnitLabel(list);
        row.follows = new QLabel(list);
        row.follows->setForegroundRole(QPalette::PlaceholderText);
        connect(row.rate, &QLineEdit::textEdited, this, [this, frame](const QString& text) {
            properties_.SetRateText(frame, StdStr(text));
            ShowRates(rows_[static_cast<std::size_t>(frame)].rate);
        });
        grid->addWidget(picture, frame, 0);
        grid->addWidget(label, frame, 1);
        grid->addWidget(row.rate, frame, 2);
        grid->addWidget(row.unit, frame, 3);
        grid->addWidget(row.follows, frame, 4);
        rows_.push_back(row);
    }
    grid->setColumnStretch(5, 1);
    grid->setRowStretch(properties_.FrameCount(), 1);
    return list;
}

void PropertiesDialog::ShowRates(const QLineEdit* typing) {
    const QString unit = QStr(properties_.UnitText());
    const auto show = [typing](QLineEdit* box, const std::string& text) {
        if (box != typing && box->text() != QStr(text)) box->setText(QStr(text));
    };
    show(defaultRate_, properties_.DefaultRateText());
    defaultUnit_->setText(unit);
    for (int frame = 0; frame < static_cast<int>(rows_.size()); ++frame) {
        FrameRow& row = rows_[static_cast<std::size_t>(frame)];
        show(row.rate, properties_.RateText(frame));
        row.unit->setText(unit);
        row.follows->setText(frame == 0                          ? Tr(at::IsDefault)
                             : properties_.FollowsDefault(frame) ? Tr(at::FollowsDefault)
                                                                 : QString());
    }
}

void PropertiesDialog::accept() {
    const std::optional<AnimationPropertiesValues> values = properties_.Ok();
    if (!values) {
        // The core has said why; the cursor goes where the rate is wrong.
        const int frame = properties_.InvalidFrame();
        QLineEdit* box = frame <= 0 ? defaultRate_ : rows_[static_cast<std::size_t>(frame)].rate;
        frames_->ensureWidgetVisible(box);
        box->setFocus();
        box->selectAll();
        return;
    }
    editor_.Animation().ApplyProperties(*values);
    QDialog::accept();
}

}  // namespace iw::ui
