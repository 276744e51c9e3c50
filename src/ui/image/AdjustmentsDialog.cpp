#include "ui/image/AdjustmentsDialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>
#include <QVBoxLayout>

#include "services/core/TextCatalog.h"
#include "ui/UiText.h"
#include "ui/dialogs/OkCancelButtons.h"

namespace iw::ui {
namespace {

constexpr std::string_view kWindow = "frmBrightness";

QString Text(std::string_view key, std::string_view text) {
    return Caption(kWindow, key, text);
}

struct ChannelOption {
    const char* name;
    std::string_view text;
    AdjustChannel channel;
};

constexpr ChannelOption kChannels[] = {
    {"optAll", "&All", AdjustChannel::All},       {"optRed", "&Red", AdjustChannel::Red},
    {"optGreen", "&Green", AdjustChannel::Green}, {"optBlue", "Bl&ue", AdjustChannel::Blue},
    {"optAlpha", "Al&pha", AdjustChannel::Alpha},
};

}  // namespace

void AdjustmentsDialog::Open(Editor& editor, QWidget* parent) {
    if (!editor.HasImage()) return;
    auto* dialog = new AdjustmentsDialog(editor, parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

AdjustmentsDialog::AdjustmentsDialog(Editor& editor, QWidget* parent)
    : QDialog(parent), adjustments_(editor.AdjustColors()) {
    setObjectName(QStr(kWindow));
    setWindowTitle(Text("Caption", "Adjust Colors"));

    auto* grid = new QGridLayout;
    AddSlider(*grid, 0, "sldBrightness", "lblBrightness",
              "&Brightness:", &ColorAdjustments::SetBrightness);
    AddSlider(*grid, 1, "sldContrast", "lblContrast", "&Contrast:", &ColorAdjustments::SetContrast);
    AddSlider(*grid, 2, "sldGamma", "lblGamma", "Ga&mma:", &ColorAdjustments::SetGamma);
    AddSlider(*grid, 3, "sldSat", "lblSat", "&Saturation:", &ColorAdjustments::SetSaturation);

    auto* channels = new QGroupBox(Text("fraChannel", "Channel"), this);
    channels->setObjectName(QStringLiteral("fraChannel"));
    auto* channelRow = new QHBoxLayout(channels);
    for (const ChannelOption& option : kChannels) {
        auto* button = new QRadioButton(Text(option.name, option.text), channels);
        button->setObjectName(QString::fromLatin1(option.name));
        button->setChecked(adjustments_ && adjustments_->Channel() == option.channel);
        connect(button, &QRadioButton::toggled, this, [this, channel = option.channel](bool on) {
            if (on && adjustments_) adjustments_->SetChannel(channel);
        });
        channelRow->addWidget(button);
    }

    QDialogButtonBox* buttons = OkCancelButtons(*this);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(channels);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

QSlider* AdjustmentsDialog::AddSlider(QGridLayout& grid, int row, const char* name,
                                      const char* label, std::string_view text,
                                      void (ColorAdjustments::*set)(int)) {
    constexpr int kSliderWidth = 240;
    auto* slider = new QSlider(Qt::Horizontal, this);
    slider->setObjectName(QString::fromLatin1(name));
    slider->setRange(0, 100);
    slider->setValue(AdjustmentSliders::kNeutral);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setTickInterval(10);
    slider->setPageStep(10);
    slider->setMinimumWidth(kSliderWidth);
    auto* caption = new QLabel(Text(label, text), this);
    caption->setObjectName(QString::fromLatin1(label));
    caption->setBuddy(slider);
    auto* value = new QLabel(QString::number(slider->value()), this);
    value->setMinimumWidth(value->fontMetrics().horizontalAdvance(QStringLiteral("100")));
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(slider, &QSlider::valueChanged, this, [this, value, set](int v) {
        value->setNum(v);
        if (adjustments_) ((*adjustments_).*set)(v);
    });
    grid.addWidget(caption, row, 0);
    grid.addWidget(slider, row, 1);
    grid.addWidget(value, row, 2);
    return slider;
}

void AdjustmentsDialog::done(int result) {
    if (adjustments_) {
        if (result == QDialog::Accepted)
            adjustments_->Ok();
        else
            adjustments_->Cancel();
        adjustments_.reset();
    }
    QDialog::done(result);
}

}  // namespace iw::ui
