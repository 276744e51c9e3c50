#include "ui/animation/AnimationPreviewDialog.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "services/core/TextCatalog.h"
#include "ui/UiText.h"
#include "ui/animation/AnimationTexts.h"
#include "ui/animation/FrameView.h"

namespace iw::ui {
namespace {

namespace at = animation_texts;

// The zoomed view's pixels: as large as fits 256 screen pixels, from twice to eight times.
int ZoomFor(const IconSet& set) {
    int side = 1;
    for (int frame = 0; frame < set.Count(); ++frame)
        side = std::max({side, set.Info(frame).Width(), set.Info(frame).Height()});
    return std::clamp(256 / side, 2, 8);
}

QPushButton* Button(const TextId& text, QWidget* parent) {
    auto* button = new QPushButton(Tr(text), parent);
    button->setObjectName(QStr(text.key));
    button->setAutoDefault(false);
    return button;
}

// A view in a frame captioned with what it shows.
QGroupBox* Framed(const QString& caption, const char* name, QWidget* view, QWidget* parent) {
    auto* box = new QGroupBox(caption, parent);
    box->setObjectName(QString::fromLatin1(name));
    auto* layout = new QVBoxLayout(box);
    layout->addWidget(view, 0, Qt::AlignCenter);
    return box;
}

}  // namespace

AnimationPreviewDialog::AnimationPreviewDialog(Editor& editor, QWidget* parent)
    : QDialog(parent), player_(editor.Animation().Play()) {
    setObjectName(QStr(at::kPreview));
    setWindowTitle(Tr(texts::PreviewANI));
    const IconSet& set = editor.Set();

    actual_ = new FrameView(set, 1, this);
    actual_->setObjectName(QStringLiteral("picActual"));
    const int zoom = ZoomFor(set);
    zoomed_ = new FrameView(set, zoom, this);
    zoomed_->setObjectName(QStringLiteral("picZoomed"));
    auto* views = new QHBoxLayout;
    views->addWidget(Framed(Tr(at::ActualSize), "fraActual", actual_, this), 0, Qt::AlignTop);
    views->addWidget(Framed(Tr(at::Zoomed).arg(zoom), "fraZoomed", zoomed_, this), 1, Qt::AlignTop);

    step_ = new QLabel(this);
    step_->setObjectName(QStr(at::StepText.key));
    step_->setAlignment(Qt::AlignCenter);

    QPushButton* back = Button(at::StepBack, this);
    play_ = Button(at::Play, this);
    QPushButton* forward = Button(at::Step, this);
    connect(back, &QPushButton::clicked, this, [this] {
        player_.StepBack();
        Show();
    });
    connect(forward, &QPushButton::clicked, this, [this] {
        player_.StepForward();
        Show();
    });
    connect(play_, &QPushButton::clicked, this, &AnimationPreviewDialog::TogglePlay);
    // Pause is the widest of Play's two captions: the button keeps its width.
    play_->setMinimumWidth(
        std::max(play_->sizeHint().width(), QPushButton(Tr(at::Pause)).sizeHint().width()));
    auto* controls = new QHBoxLayout;
    controls->addStretch();
    controls->addWidget(back);
    controls->addWidget(play_);
    controls->addWidget(forward);
    controls->addStretch();

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* close = Button(at::Close, this);
    buttons->addButton(close, QDialogButtonBox::RejectRole);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(views);
    layout->addWidget(step_);
    layout->addLayout(controls);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    timer_.setObjectName(QStringLiteral("timPlay"));
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &AnimationPreviewDialog::TimeUp);
    Show();
}

void AnimationPreviewDialog::Show() {
    const int frame = player_.Frame();
    actual_->ShowFrame(frame);
    zoomed_->ShowFrame(frame);
    step_->setText(
        Tr(at::StepText).arg(frame + 1).arg(player_.Step() + 1).arg(player_.StepCount()));
    play_->setText(Tr(player_.Playing() ? at::Pause : at::Play));
    if (player_.Playing())
        timer_.start(player_.Milliseconds());
    else
        timer_.stop();
}

void AnimationPreviewDialog::TimeUp() {
    if (!player_.Playing()) return;
    player_.Advance();
    Show();
}

void AnimationPreviewDialog::TogglePlay() {
    player_.TogglePlay();
    Show();
}

}  // namespace iw::ui
