#include "ui/main/ColorBox.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QToolButton>

#include "editor/NumberText.h"
#include "ui/UiText.h"
#include "ui/colors/ColorsDialog.h"
#include "ui/main/MainTexts.h"
#include "ui/widgets/ColorSwatch.h"

namespace iw::ui {
namespace {

namespace mt = main_texts;

constexpr int kSwatch = 30;  // logical pixels
constexpr int kOverlap = 12;

}  // namespace

ColorBox::ColorBox(Editor& editor, QWidget* parent) : QWidget(parent), editor_(editor) {
    setObjectName(QStringLiteral("fraColors"));
    // The two swatches overlap, the foreground in front; the switch sits at the top right.
    auto* pair = new QWidget(this);
    pair->setFixedSize(2 * kSwatch - kOverlap + 24, 2 * kSwatch - kOverlap);
    back_ = new ColorSwatch(pair);
    back_->setObjectName(QStringLiteral("picBackcolor"));
    back_->setGeometry(kSwatch - kOverlap, kSwatch - kOverlap, kSwatch, kSwatch);
    fore_ = new ColorSwatch(pair);
    fore_->setObjectName(QStringLiteral("picForeColor"));
    fore_->setGeometry(0, 0, kSwatch, kSwatch);
    auto* switchColors = new QToolButton(pair);
    switchColors->setObjectName(QStringLiteral("picSwitchColors"));
    switchColors->setIcon(UiIcon("switch-colors"));
    switchColors->setIconSize(QSize(16, 16));
    switchColors->setAutoRaise(true);
    switchColors->setToolTip(Tr(mt::SwitchColors));
    switchColors->setGeometry(2 * kSwatch - kOverlap, 0, 22, 22);
    connect(fore_, &ColorSwatch::DoubleClicked, this, &ColorBox::ChooseForeColor);
    connect(back_, &ColorSwatch::DoubleClicked, this, &ColorBox::ChooseBackColor);
    connect(switchColors, &QToolButton::clicked, this, [this] { editor_.Tools().SwitchColors(); });

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 4, 0, 0);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(2);
    grid->addWidget(pair, 0, 0, 1, 3, Qt::AlignLeft);
    const std::array<std::tuple<Channel, const char*, TextId>, 4> rows = {{
        {Channel::Red, "Red", mt::Red},
        {Channel::Green, "Green", mt::Green},
        {Channel::Blue, "Blue", mt::Blue},
        {Channel::Alpha, "Alpha", mt::Alpha},
    }};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& [channel, name, caption] = rows[i];
        auto* label = new QLabel(Tr(caption), this);
        label->setObjectName(QStringLiteral("lbl") + QLatin1String(name));
        auto* slider = new QSlider(Qt::Horizontal, this);
        slider->setObjectName(QStringLiteral("sld") + QLatin1String(name));
        slider->setRange(0, 255);
        slider->setMinimumWidth(60);
        auto* box = new QLineEdit(this);
        box->setObjectName(QStringLiteral("txt") + QLatin1String(name));
        box->setMaxLength(6);
        box->setFixedWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 12);
        label->setBuddy(box);
        const int row = static_cast<int>(i) + 1;
        grid->addWidget(label, row, 0);
        grid->addWidget(slider, row, 1);
        grid->addWidget(box, row, 2);
        channels_[i] = {channel, slider, box};
        const Channel c = channel;
        connect(slider, &QSlider::valueChanged, this,
                [this, c](int value) { SliderMoved(c, value); });
        const ChannelControls controls = channels_[i];
        connect(box, &QLineEdit::editingFinished, this,
                [this, controls] { EntryFinished(controls); });
    }
    grid->setColumnStretch(1, 1);
    ColorsChanged();
}

void ColorBox::ColorsChanged() {
    const ToolState& state = editor_.Tools().State();
    updating_ = true;
    fore_->SetColor(state.ForeColor, state.CurrentAlpha);
    back_->SetColor(state.BackColor);
    fore_->setToolTip(Tr(mt::ForeColor) + QStringLiteral("\n") + ColorWords(state.ForeColor));
    back_->setToolTip(Tr(mt::BackColor) + QStringLiteral("\n") + ColorWords(state.BackColor));
    for (const ChannelControls& controls : channels_) {
        const int value = editor_.Tools().ChannelValue(controls.channel);
        controls.slider->setValue(value);
        // The box being typed into keeps its text until the entry is finished.
        if (!controls.box->hasFocus()) controls.box->setText(QString::number(value));
    }
    updating_ = false;
}

void ColorBox::SliderMoved(Channel channel, int value) {
    if (updating_) return;
    if (channel == Channel::Alpha) {
        editor_.Tools().SetAlpha(value);
    } else {
        editor_.Tools().ApplyChannelEntry(channel, NumberText(value));
    }
}

void ColorBox::EntryFinished(const ChannelControls& controls) {
    const std::optional<std::string> corrected =
        editor_.Tools().ApplyChannelEntry(controls.channel, StdStr(controls.box->text()));
    if (corrected) {
        controls.box->setText(QStr(*corrected));
    } else {
        controls.box->setText(QString::number(editor_.Tools().ChannelValue(controls.channel)));
    }
}

void ColorBox::ChooseForeColor() {
    const ToolState& state = editor_.Tools().State();
    ColorsDialog dialog(state.ForeColor, state.CurrentAlpha, true, this);
    if (dialog.exec() != QDialog::Accepted) return;
    editor_.Tools().SetForeColor(dialog.Picker().Color());
    editor_.Tools().SetAlpha(dialog.Picker().Alpha());
}

void ColorBox::ChooseBackColor() {
    ColorsDialog dialog(editor_.Tools().State().BackColor, 255, false, this);
    if (dialog.exec() != QDialog::Accepted) return;
    editor_.Tools().SetBackColor(dialog.Picker().Color());
}

}  // namespace iw::ui
